#pragma once

#include <QLineEdit>

namespace velmora {

/// A one-line text input. Only the owner's edits emit `textChanged`: typing, pasting, clearing or an
/// accessible action.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    /// `name` is what assistive technology reads; `placeholder` shows while the field is empty.
    TextField(const QString& name, const QString& placeholder, QWidget* parent);

    /// Does not emit `textChanged`. Keeps the cursor position if the text is the same.
    void setText(const QString& text);
    /// Draws the border in the alert colour.
    void setInvalid(bool invalid);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool invalid_ = false;
};

} // namespace velmora
