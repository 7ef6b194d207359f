#include "ui/window/title_strip.h"

#include "ui/blocks/hairline.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QHBoxLayout>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWindow>

namespace velmora {

namespace {

constexpr double hoverOnDark = 0.12;
constexpr double extraVeil = 0.5; // over the veil, so that the texts are legible

QPalette menuPalette(bool dark) {
    QPalette palette;
    palette.setColor(QPalette::ButtonText, dark ? SB::dTitle : SB::muted);
    palette.setColor(QPalette::HighlightedText, dark ? SB::dTitle : SB::ink);
    palette.setColor(QPalette::Highlight, dark ? SB::faded(SB::dTitle, hoverOnDark) : SB::rule2);
    return palette;
}

} // namespace

WindowButton::WindowButton(Icon icon, const QString& name, QWidget* parent)
    : QAbstractButton(parent), icon_(icon) {
    setFixedSize(Measure::windowButton);
    setFocusPolicy(Qt::NoFocus);
    setIcon(icon, name);
}

void WindowButton::setIcon(Icon icon, const QString& name) {
    icon_ = icon;
    setAccessibleName(name);
    setToolTip(name);
    update();
}

void WindowButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool closes = icon_ == Icon::close;
    const QColor hover = dark_ ? SB::faded(SB::dTitle, hoverOnDark) : SB::rule2;
    const QColor glyph = dark_ ? SB::dTitle : SB::muted;
    if (underMouse())
        painter.fillRect(rect(), closes ? SB::alert : hover);
    paintIcon(painter, QRectF(rect()).center(), Measure::windowGlyph, icon_,
              underMouse() && closes ? SB::page : glyph);
}

void WindowButton::setOnDark(bool dark) {
    dark_ = dark;
    update();
}

void WindowButton::enterEvent(QEnterEvent*) {
    update();
}

void WindowButton::leaveEvent(QEvent*) {
    update();
}

TitleStrip::TitleStrip(QMenuBar* menus, QWidget* parent)
    : QWidget(parent), veil_(*this, Motion::cardIn, QEasingCurve::OutCubic), menus_(menus) {
    setFixedHeight(Measure::titleStrip);
    menus_->setPalette(menuPalette(false));
    connect(&veil_, &Transition::changed, this, qOverload<>(&QWidget::update));
    auto* minimise = new WindowButton(Icon::minimise, tr("Minimise"), this);
    maximise_ = new WindowButton(Icon::maximise, tr("Maximise"), this);
    auto* close = new WindowButton(Icon::close, tr("Close"), this);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Measure::titleStripIndent, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(menus, 0, Qt::AlignVCenter);
    row->addStretch(1);
    for (WindowButton* button : {minimise, maximise_, close})
        row->addWidget(button);

    connect(minimise, &WindowButton::clicked, this, [this] { window()->showMinimized(); });
    connect(maximise_, &WindowButton::clicked, this, &TitleStrip::toggleMaximised);
    connect(close, &WindowButton::clicked, this, [this] { window()->close(); });
    parent->window()->installEventFilter(this);
}

void TitleStrip::setOverSidebar(bool over) {
    if (over == overSidebar_)
        return;
    overSidebar_ = over;
    update();
}

void TitleStrip::setVeiled(bool veiled) {
    if (veiled == veiled_)
        return;
    veiled_ = veiled;
    menus_->setPalette(menuPalette(veiled));
    for (WindowButton* button : findChildren<WindowButton*>())
        button->setOnDark(veiled);
    veil_.setDuration(veiled ? Motion::cardIn : Motion::cardOut);
    veil_.moveTo(veiled ? 1 : 0);
}

void TitleStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), SB::page);
    if (overSidebar_) {
        painter.fillRect(0, 0, Measure::sidebar, height(), SB::panel);
        paintHairline(painter, {Measure::sidebar - 1, 0, 1, height()}, SB::rule);
    }
    for (const double veil : {Measure::veil, extraVeil})
        painter.fillRect(rect(), SB::faded(SB::navy, veil * veil_.value()));
}

void TitleStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        window()->windowHandle()->startSystemMove();
}

void TitleStrip::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        toggleMaximised();
}

bool TitleStrip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowStateChange)
        showWindowState();
    return QWidget::eventFilter(watched, event);
}

void TitleStrip::toggleMaximised() {
    if (window()->isMaximized())
        window()->showNormal();
    else
        window()->showMaximized();
}

void TitleStrip::showWindowState() {
    const bool maximised = window()->isMaximized();
    maximise_->setIcon(maximised ? Icon::restore : Icon::maximise,
                       maximised ? tr("Restore") : tr("Maximise"));
}

} // namespace velmora
