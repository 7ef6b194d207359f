#include "ui/window/status_badges.h"

#include "model/flight_limits.h"
#include "ui/blocks/accessibility.h"
#include "ui/blocks/badge.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/blocks/tool_tip.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/link_color.h"

#include <QHBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

void paintBattery(QPainter& painter, const QRectF& bar, double charge, bool low) {
    const double radius = bar.height() / 2;
    fillRounded(painter, bar, radius, SB::rule2);
    QRectF filled = bar;
    filled.setWidth(bar.width() * std::clamp(charge, 0.0, 1.0));
    fillRounded(painter, filled, radius, low ? SB::caution : SB::teal);
}

void paintDroneInCircle(QPainter& painter, const QRectF& circle) {
    fillDisc(painter, circle.center(), circle.width(), SB::page, SB::rule);
    paintIcon(painter, circle.center(), Measure::droneBadgeIcon, Icon::drone, SB::ink);
}

} // namespace

DroneBadge::DroneBadge(AppStore& store, QWidget* parent) : QWidget(parent), store_(store) {
    setFixedHeight(Measure::droneBadgeRow);
    declareRole(this, QAccessible::StaticText);
    connect(&store_, &AppStore::stateChanged, this, &DroneBadge::refresh);
    connect(&store_, &AppStore::moved, this, &DroneBadge::refresh);
    connect(&store_, &AppStore::settingsChanged, this, &DroneBadge::refresh);
    connect(&store_, &AppStore::freshnessChanged, this, &DroneBadge::refresh);
    refresh();
}

void DroneBadge::refresh() {
    const LiveState* state = store_.knownState();
    const QString phase = state ? phaseWord(state->phase) : tr("No picture yet");
    const QString battery = state ? tr("%1%").arg(rounded(state->drone.battery)) : QStringLiteral("—");
    const bool low = state && isBatteryLow(state->drone, store_.settings());
    if (phase == phase_ && battery == battery_ && low == low_)
        return;
    phase_ = phase;
    battery_ = battery;
    charge_ = state ? state->drone.battery / 100 : 0;
    low_ = low;
    setAccessibleName(phase_ + ", " + tr("battery %1").arg(battery_));
    constexpr double words = Measure::sidebar - 2.0 * (Measure::sidebarSide + Measure::sectionPadding) -
                             Measure::droneBadgeCircle - Measure::gap12;
    setToolTipIfElided(*this, phase_, textWidth(phase_, Type::bodyStrong) > words);
    update();
}

void DroneBadge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF circle(0, 0, Measure::droneBadgeCircle, Measure::droneBadgeCircle);
    circle.moveTop((height() - circle.height()) / 2);
    paintDroneInCircle(painter, circle);

    QRectF words = QRectF(rect()).adjusted(circle.right() + Measure::gap12, 0, 0, 0);
    words.setHeight(Type::bodyStrong.line);
    words.moveTop(height() / 2.0 - words.height() + 2);
    drawText(painter, words, phase_, Type::bodyStrong, SB::ink, Qt::AlignVCenter);
    QRectF bar({words.left(), words.bottom()}, QSizeF(Measure::batteryBar));
    words.moveTop(words.bottom());
    words.setHeight(Type::label2.line);
    bar.moveTop(words.center().y() - bar.height() / 2);
    paintBattery(painter, bar, charge_, low_);
    words.setLeft(bar.right() + Measure::gap8);
    drawText(painter, words, battery_, Type::label2.withTabularDigits(), SB::muted, Qt::AlignVCenter);
}

LinkBadge::LinkBadge(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      dot_(new StatusDot({.color = SB::dot}, this)),
      text_(new Text({}, Type::linkStatus, SB::muted, this)),
      demo_(new Badge(tr("Demo"), this)) {
    text_->setMaximumLines(3);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2, Measure::gap12, 0, 0);
    row->setSpacing(Measure::linkGap);
    auto* firstLine = new QVBoxLayout;
    firstLine->addSpacing(static_cast<int>(Type::linkStatus.line - Measure::statusDot) / 2);
    firstLine->addWidget(dot_);
    firstLine->addStretch(1);
    row->addLayout(firstLine);
    row->addWidget(text_, 1, Qt::AlignTop);
    row->addWidget(demo_, 0, Qt::AlignTop);
    connect(&store_, &AppStore::linkStatusChanged, this, &LinkBadge::refresh);
    refresh();
}

void LinkBadge::refresh() {
    text_->setText(store_.linkStatus().text());
    demo_->setVisible(store_.linkStatus().kind == LinkStatus::Case::demo);
    dot_->setDotStyle({.color = linkColor(store_.linkStatus())});
}

} // namespace velmora
