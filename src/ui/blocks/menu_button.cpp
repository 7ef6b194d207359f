#include "ui/blocks/menu_button.h"

#include "ui/blocks/focus_ring.h"
#include "ui/blocks/tool_tip.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <cmath>

namespace velmora {

MenuButton::MenuButton(const QString& name, QWidget* parent) : QAbstractButton(parent) {
    setAccessibleDescription(name);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    FocusRing::setRingStyle(this, {Measure::badgeRadius});
    connect(this, &QAbstractButton::clicked, this, &MenuButton::open);
}

void MenuButton::setOptions(const QStringList& options, int chosen) {
    options_ = options;
    const QString text = options.value(chosen);
    if (text == this->text())
        return;
    setText(text);
    setAccessibleName(text);
    updateToolTip();
    updateGeometry();
    update();
}

QSize MenuButton::sizeHint() const {
    const double width = textWidth(text(), Type::compactRow) + Measure::gap4 + Measure::chevron;
    return {static_cast<int>(std::ceil(width)) + 1, static_cast<int>(Type::compactRow.line)};
}

QSize MenuButton::minimumSizeHint() const {
    return {std::min(sizeHint().width(), Measure::menuButtonMinimum), sizeHint().height()};
}

void MenuButton::open() {
    auto* menu = new QMenu(parentWidget()); // a button hides its children from assistive technology
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    for (int i = 0; i < options_.size(); ++i) {
        const QString shown = elided(options_[i], Type::compactRow, Measure::menuText);
        QAction* action = menu->addAction(QString(shown).replace('&', QStringLiteral("&&")));
        action->setToolTip(shown == options_[i] ? QString() : plainToolTip(options_[i]));
        connect(action, &QAction::triggered, this, [this, i] { emit chose(i); });
    }
    menu->popup(mapToGlobal(QPoint(0, height() + Measure::gap4)));
}

void MenuButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Down)
        open();
    else
        QAbstractButton::keyPressEvent(event);
}

QRectF MenuButton::textArea() const {
    return QRectF(rect()).adjusted(0, 0, -Measure::gap4 - Measure::chevron, 0);
}

void MenuButton::updateToolTip() {
    setToolTipIfElided(*this, text(), elided(text(), Type::compactRow, textArea().width()) != text());
}

void MenuButton::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

void MenuButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor color = underMouse() ? SB::blue : SB::ink;
    drawText(painter, textArea(), text(), Type::compactRow, color, Qt::AlignVCenter);
    paintIcon(painter, {width() - Measure::chevron / 2.0, height() / 2.0}, Measure::chevron, Icon::chevron,
              color);
}

} // namespace velmora
