#pragma once

#include <QLineEdit>

namespace velmora {

/// A line of text to fill in. `textChanged` is the owner's doing: typing, pasting, clearing or an accessible
/// action.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    /// `name` is what assistive technology reads; `placeholder` shows while the field is empty.
    TextField(const QString& name, const QString& placeholder, QWidget* parent);

    /// Emits nothing, and leaves the cursor alone if the text is the same.
    void setText(const QString& text);
    /// A refused text has a border in the alert colour.
    void setRefused(bool refused);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool refused_ = false;
};

} // namespace velmora
