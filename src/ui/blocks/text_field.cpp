#include "ui/blocks/text_field.h"

#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QSignalBlocker>

namespace velmora {

TextField::TextField(const QString& name, const QString& placeholder, QWidget* parent) : QLineEdit(parent) {
    setAccessibleName(name);
    setPlaceholderText(placeholder);
    setFixedHeight(Measure::fieldHeight);
    setFont(fontOf(Type::body));
    setFrame(false);
    setTextMargins(Measure::fieldPadding - 2, 0, Measure::fieldPadding - 2,
                   0); // Qt adds two pixels
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    setPalette(colors);
    FocusRing::setRingStyle(this, {.radius = Measure::thumbnailRadius, .field = true});
}

void TextField::setText(const QString& text) {
    if (text == this->text())
        return;
    const QSignalBlocker silently(this);
    QLineEdit::setText(text);
}

void TextField::setInvalid(bool invalid) {
    if (invalid == invalid_)
        return;
    invalid_ = invalid;
    update();
}

void TextField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        fillRounded(painter, rect(), Measure::thumbnailRadius, isEnabled() ? SB::page : SB::panel,
                    invalid_     ? SB::alert
                    : hasFocus() ? SB::blue
                                 : SB::edge);
    }
    QLineEdit::paintEvent(event);
}

} // namespace velmora
