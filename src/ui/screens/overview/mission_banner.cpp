#include "ui/screens/overview/mission_banner.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/blocks/tool_tip.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/stale_banner.h"

#include <QGridLayout>

namespace velmora {

namespace {

constexpr TextStyle factStyle = Type::body.withTabularDigits();
constexpr TextStyle pillStyle = Type::bodyStrong.withTabularDigits();

QString separator() {
    return QStringLiteral("·");
}

double widthOf(const MissionFact& fact) {
    return fact.warns ? textWidth(fact.text, pillStyle) + 2 * Measure::pillPadding
                      : textWidth(fact.text, factStyle);
}

double separatorWidth() {
    return textWidth(separator(), factStyle) + 2 * Measure::gap8;
}

void paintFact(QPainter& painter, const QRectF& box, const MissionFact& fact) {
    if (!fact.warns) {
        drawText(painter, box, fact.text, factStyle, SB::dLabel, Qt::AlignVCenter);
        return;
    }
    QRectF pill(box.left(), 0, box.width(), Measure::pillHeight);
    pill.moveTop((box.height() - pill.height()) / 2);
    fillRounded(painter, pill, Measure::pillRadius, SB::caution);
    drawText(painter, pill.adjusted(Measure::pillPadding, 0, 0, 0), fact.text, pillStyle, SB::page,
             Qt::AlignVCenter);
}

} // namespace

MissionFacts::MissionFacts(QWidget* parent) : QWidget(parent) {
    declareRole(this, QAccessible::StaticText);
}

/// The accessible name holds all facts, and so does the tooltip if some do not fit.
void MissionFacts::setFacts(const std::vector<MissionFact>& facts) {
    if (facts == facts_)
        return;
    facts_ = facts;
    QStringList texts;
    for (const MissionFact& fact : facts_)
        texts.append(fact.text);
    setAccessibleName(texts.join(QStringLiteral(", ")));
    updateToolTip();
    update();
}

void MissionFacts::updateToolTip() {
    setToolTipIfElided(*this, accessibleName(), fitting() < facts_.size());
}

void MissionFacts::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

std::size_t MissionFacts::fitting() const {
    double right = 0;
    std::size_t fitting = 0;
    for (const MissionFact& fact : facts_) {
        right += (fitting > 0 ? separatorWidth() : 0) + widthOf(fact);
        if (right > width())
            break;
        ++fitting;
    }
    return fitting;
}

void MissionFacts::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    double x = 0;
    for (std::size_t i = 0; i < fitting(); ++i) {
        if (i > 0) {
            drawText(painter, QRectF(x + Measure::gap8, 0, width(), height()), separator(), factStyle,
                     SB::dLabel, Qt::AlignVCenter);
            x += separatorWidth();
        }
        paintFact(painter, QRectF(x, 0, widthOf(facts_[i]), height()), facts_[i]);
        x += widthOf(facts_[i]);
    }
}

ActiveBanner::ActiveBanner(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      dot_(new StatusDot({.color = SB::dTeal, .halo = true, .dark = true}, this)),
      phase_(new Text({}, Type::status, SB::dTeal, this)),
      facts_(new MissionFacts(this)),
      open_(new SBButton(tr("Open live flight →"), {.kind = SBButtonKind::onDark}, this)) {
    dot_->setPulsing(true);
    phase_->setMaximumLines(1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Measure::bannerMargins);
    row->setSpacing(Measure::gap8);
    row->addWidget(dot_);
    row->addWidget(phase_, 0, Qt::AlignVCenter);
    row->addSpacing(Measure::missionFactsGap - Measure::gap8);
    row->addWidget(facts_, 1);
    row->addWidget(open_);
    connect(open_, &SBButton::clicked, this, [this] { store_.setSection(Section::live); });
}

void ActiveBanner::refresh() {
    phase_->setText(phaseWord(store_.phase()));
    facts_->setFacts(missionFacts(store_));
}

QWidget* ActiveBanner::openButton() const {
    return open_;
}

void ActiveBanner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::cardRadius, SB::navy);
}

OverviewBanner::OverviewBanner(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      active_(new ActiveBanner(store, this)),
      stale_(new StaleBanner(store, this, Section::overview)) {
    auto* layers = bareLayout<QGridLayout>(this);
    layers->addWidget(active_, 0, 0);
    layers->addWidget(stale_, 0, 0);
    stale_->hide();
}

bool OverviewBanner::isDue() const {
    return StaleBanner::isDue(store_) || store_.phase() != Phase::docked;
}

/// Keeps its last content while it closes. Hiding the focused widget would move the focus to another control,
/// which the next key press would trigger, so this moves the focus first.
void OverviewBanner::refresh() {
    if (!isDue())
        return;
    const bool stale = StaleBanner::isDue(store_);
    stale ? stale_->refresh() : active_->refresh();
    QWidget* shown = stale ? static_cast<QWidget*>(stale_) : active_;
    QWidget* hidden = stale ? static_cast<QWidget*>(active_) : stale_;
    const QWidget* focus = focusWidget();
    const bool movesFocus = focus && focus->hasFocus() && hidden->isAncestorOf(focus);
    shown->show();
    if (movesFocus && store_.phase() != Phase::docked)
        (stale ? stale_->openButton() : active_->openButton())->setFocus(Qt::OtherFocusReason);
    else if (movesFocus)
        parentWidget()->setFocus(Qt::OtherFocusReason);
    hidden->hide();
}

QSize OverviewBanner::sizeHint() const {
    return {QWidget::sizeHint().width(), Measure::bannerHeight};
}

} // namespace velmora
