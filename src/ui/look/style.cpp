#include "ui/look/style.h"

#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "x11/x11.h"

#include <QApplication>
#include <QBitmap>
#include <QMenu>
#include <QMouseEvent>
#include <QStyleFactory>
#include <QStyleOption>

#include <cmath>

namespace velmora {

namespace {

constexpr double disabledText = 0.55;

constexpr Shadow menuShadow{6, 20, 0.2};

/// A menu has contents margins for its shadow while windows are composited.
bool hasShadow(const QWidget& menu) {
    return !menu.contentsMargins().isNull();
}

/// Makes room for the shadow, or takes it away, before the menu is shown.
void fitShadow(QMenu& menu) {
    const QMargins room = X11::isComposited() ? Measure::menuShadow : QMargins();
    if (room == menu.contentsMargins())
        return;
    menu.setContentsMargins(room);
    QEvent change(QEvent::StyleChange); // after which the menu arranges its items again
    QApplication::sendEvent(&menu, &change);
}

/// Cuts off the corners of a menu without a shadow: transparent ones would be black.
void cutCorners(QWidget& menu) {
    if (hasShadow(menu)) {
        menu.clearMask();
        return;
    }
    QBitmap shape(menu.size());
    shape.clear();
    QPainter painter(&shape);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(menu.rect(), Measure::cardRadius, Measure::cardRadius);
    painter.end();
    menu.setMask(shape);
}

/// Under a mask, which has no half transparent pixels, everything outside the inner edge is border.
void paintMenuPanel(QPainter& painter, const QWidget& menu) {
    const QRect panel = menu.contentsRect();
    if (hasShadow(menu)) {
        paintShadow(painter, panel, Measure::cardRadius, menuShadow);
        fillRounded(painter, panel, Measure::cardRadius, SB::page, SB::rule);
    } else {
        painter.fillRect(panel, SB::rule);
        fillRounded(painter, panel.adjusted(1, 1, -1, -1), Measure::cardRadius - 1, SB::page);
    }
}

/// Splits the item at the tab between text and shortcut, and removes the ampersands of mnemonics.
std::pair<QString, QString> textAndShortcut(const QStyleOptionMenuItem& item) {
    QString text = item.text;
    text.remove('&');
    return {text.section('\t', 0, 0), text.section('\t', 1)};
}

void paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item) {
    const QRectF row = QRectF(item.rect).adjusted(Measure::menuRowInset, 0, -Measure::menuRowInset, 0);
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        painter.fillRect(QRectF(item.rect.left() + Measure::menuPadding, std::floor(row.center().y()),
                                item.rect.width() - 2 * Measure::menuPadding, 1),
                         SB::rule2);
        return;
    }
    const bool enabled = item.state & QStyle::State_Enabled;
    const bool highlighted = enabled && item.state & QStyle::State_Selected;
    if (highlighted)
        fillRounded(painter, row, Measure::thumbnailRadius, SB::ink);
    const QColor plain = enabled ? SB::ink : SB::faded(SB::muted, disabledText);
    const QColor shortcutColor = enabled ? SB::muted : plain;
    const QRectF words = QRectF(item.rect).adjusted(Measure::menuPadding, 0, -Measure::menuPadding, 0);
    const auto [text, shortcut] = textAndShortcut(item);
    drawText(painter, words, text, Type::menu, highlighted ? SB::page : plain, Qt::AlignVCenter);
    drawText(painter, words, shortcut, Type::label2, highlighted ? SB::page : shortcutColor,
             Qt::AlignVCenter | Qt::AlignRight);
}

void paintMenuTitle(QPainter& painter, const QStyleOptionMenuItem& item) {
    const bool active = item.state & (QStyle::State_Selected | QStyle::State_Sunken);
    if (active)
        fillRounded(painter, item.rect, Measure::menuTitleRadius, item.palette.highlight());
    drawText(painter, item.rect, textAndShortcut(item).first, Type::menu,
             active ? item.palette.highlightedText() : item.palette.buttonText(), Qt::AlignCenter);
}

QSize menuItemSize(const QStyleOptionMenuItem& item) {
    if (item.menuItemType == QStyleOptionMenuItem::Separator)
        return {1, 2 * Measure::menuSeparatorGap + 1};
    const auto [text, shortcut] = textAndShortcut(item);
    double width = 2.0 * Measure::menuPadding + textWidth(text, Type::menu);
    if (!shortcut.isEmpty())
        width += Measure::gap32 + textWidth(shortcut, Type::label2);
    return {static_cast<int>(width) + 1, Measure::menuRow};
}

} // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QPalette Style::lightPalette() {
    QPalette palette(SB::page, SB::page);
    palette.setColor(QPalette::WindowText, SB::ink);
    palette.setColor(QPalette::Text, SB::ink);
    palette.setColor(QPalette::Base, SB::page);
    palette.setColor(QPalette::AlternateBase, SB::panel);
    palette.setColor(QPalette::ButtonText, SB::ink);
    palette.setColor(QPalette::Highlight, SB::ink);
    palette.setColor(QPalette::HighlightedText, SB::page);
    palette.setColor(QPalette::PlaceholderText, SB::muted);
    palette.setColor(QPalette::ToolTipBase, SB::ink);
    palette.setColor(QPalette::ToolTipText, SB::page);
    palette.setColor(QPalette::Link, SB::blue);
    return palette;
}

/// Menus have round corners and a shadow, so their windows need a translucent background. An accessible press
/// triggers an action, but would leave its menu open.
void Style::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    auto* menu = qobject_cast<QMenu*>(widget);
    if (!menu || menu->testAttribute(Qt::WA_TranslucentBackground))
        return;
    menu->setAttribute(Qt::WA_TranslucentBackground);
    menu->installEventFilter(this);
    connect(menu, &QMenu::aboutToShow, this, [menu] { fitShadow(*menu); });
    connect(menu, &QMenu::triggered, menu, [menu] {
        if (menu->isVisible())
            menu->close();
    });
}

/// Puts the panel where a menu without a shadow would be, and treats clicks on the shadow as clicks beside
/// the menu.
bool Style::eventFilter(QObject* watched, QEvent* event) {
    auto* menu = qobject_cast<QMenu*>(watched);
    if (!menu) // it is being destroyed
        return QProxyStyle::eventFilter(watched, event);
    if (event->type() == QEvent::Resize) {
        cutCorners(*menu);
    } else if (event->type() == QEvent::Show && !event->spontaneous()) {
        const QMargins shadow = menu->contentsMargins();
        menu->move(menu->pos() - QPoint(shadow.left(), shadow.top()));
    } else if (event->type() == QEvent::MouseButtonPress) {
        const QPoint at = static_cast<QMouseEvent*>(event)->pos();
        if (menu->rect().contains(at) && !menu->contentsRect().contains(at)) {
            menu->close();
            return true;
        }
    }
    return QProxyStyle::eventFilter(watched, event);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    if (element == PE_PanelMenu)
        paintMenuPanel(*painter, *widget);
    else if (element != PE_FrameMenu && element != PE_FrameFocusRect)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    painter->save();
    if (element == CE_MenuItem && item)
        paintMenuItem(*painter, *item);
    else if (element == CE_MenuBarItem && item)
        paintMenuTitle(*painter, *item);
    else if (element != CE_MenuBarEmptyArea && element != CE_MenuEmptyArea)
        QProxyStyle::drawControl(element, option, painter, widget);
    painter->restore();
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type == CT_MenuItem && item)
        return menuItemSize(*item);
    if (type == CT_MenuBarItem && item)
        return {static_cast<int>(textWidth(textAndShortcut(*item).first, Type::menu)) +
                    2 * Measure::menuTitlePadding,
                Measure::menuTitleHeight};
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_MenuVMargin:
        return Measure::menuEdge;
    case PM_MenuBarItemSpacing:
    case PM_MenuBarHMargin:
    case PM_MenuBarVMargin:
    case PM_MenuBarPanelWidth:
    case PM_MenuHMargin:
    case PM_MenuPanelWidth:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

/// Alt does not activate the menu bar; many desktops use Alt themselves.
int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returned) const {
    switch (hint) {
    case SH_UnderlineShortcut:
    case SH_MenuBar_AltKeyNavigation:
        return 0;
    case SH_MenuBar_MouseTracking:
    case SH_Menu_MouseTracking:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

/// The menu bar asks for the icon of a button that shows menus without room. It always has room, and the icon
/// would load every plugin for pictures before the first frame.
QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    return icon == SP_ToolBarHorizontalExtensionButton ? QIcon()
                                                       : QProxyStyle::standardIcon(icon, option, widget);
}

} // namespace velmora
