#pragma once

#include <QLineEdit>

namespace velmora {

/// A line of text to fill in.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    /// `name` is what assistive technology reads; `placeholder` shows while the field is empty.
    TextField(const QString& name, const QString& placeholder, QWidget* parent);

    /// Shows a text without moving the cursor of someone who is typing, and without emitting `textEdited`.
    void show(const QString& text);
    using QLineEdit::show;
    /// A refused text has a border in the alert colour.
    void setRefused(bool refused);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool refused_ = false;
};

} // namespace velmora
