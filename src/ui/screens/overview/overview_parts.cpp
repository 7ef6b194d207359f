#include "ui/screens/overview/overview_parts.h"

#include "ui/blocks/layouts.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/guard/answer_button.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QHBoxLayout>

namespace velmora {

ArmSwitch::ArmSwitch(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      dot_(new StatusDot({.color = SB::dot, .halo = true}, this)),
      word_(new Text({}, Type::status, SB::ink, this)),
      disarm_(new SBButton(tr("Disarm"), {.kind = SBButtonKind::secondary}, this)),
      arm_(new SBButton(tr("Arm system"), {.kind = SBButtonKind::primary}, this)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Measure::armSwitchMargins);
    row->setSpacing(Measure::gap8);
    row->addWidget(dot_, 0, Qt::AlignVCenter);
    row->addWidget(word_, 0, Qt::AlignVCenter);
    row->addSpacing(Measure::gap16);
    row->addWidget(disarm_);
    row->addWidget(arm_);
    connect(disarm_, &SBButton::clicked, this, [this] { store_.setArmed(false); });
    connect(arm_, &SBButton::clicked, this, [this] { store_.setArmed(true); });
    refresh();
}

/// Disables the buttons in link mode, where only the server arms and disarms.
void ArmSwitch::refresh() {
    const LiveState* state = store_.knownState();
    const bool armed = state && state->armed;
    dot_->setDotStyle({.color = armed ? SB::dot : SB::rule, .halo = armed});
    word_->setText(!state ? tr("Not known yet") : armed ? tr("Armed") : tr("Disarmed"));
    disarm_->setVisible(armed);
    arm_->setVisible(!armed);
    for (SBButton* button : {disarm_, arm_}) {
        button->setEnabled(!store_.settings().linkMode);
        button->setToolTip(store_.settings().linkMode
                               ? tr("velmora itself is armed and disarmed at the server")
                               : QString());
    }
}

void ArmSwitch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::cardRadius, SB::panel);
}

ActiveBanner::ActiveBanner(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      dot_(new StatusDot({.color = SB::dTeal, .halo = true, .dark = true}, this)),
      phase_(new Text({}, Type::status, SB::dTeal, this)) {
    dot_->setPulsing(true);
    auto* open = new SBButton(tr("Open live flight →"), {.kind = SBButtonKind::onDark}, this);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Measure::bannerMargins);
    row->setSpacing(Measure::gap8);
    row->addWidget(dot_);
    row->addWidget(phase_, 1, Qt::AlignVCenter);
    row->addWidget(open);
    connect(open, &SBButton::clicked, this, [this] { store_.setSection(Section::live); });
}

void ActiveBanner::refresh() {
    phase_->setText(phaseWord(store_.phase()));
}

QSize ActiveBanner::sizeHint() const {
    return {QWidget::sizeHint().width(), Measure::bannerHeight};
}

void ActiveBanner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::cardRadius, SB::navy);
}

VisitOffers::VisitOffers(AppStore& store, AnswerGuard& guard, QWidget* parent)
    : QWidget(parent),
      store_(store),
      heading_(new Text(tr("Simulate a visitor"), Type::groupHeading, SB::ink, this)),
      launch_(new AnswerButton(Command::approve, guard, tr("Launch (approve)"),
                               {.kind = SBButtonKind::primary, .wide = true}, this)) {
    auto* column = bareLayout<QVBoxLayout>(this, Measure::gap8);
    column->addWidget(heading_);
    column->addSpacing(Measure::gap4);
    for (const auto& [scenario, id] : rawValuesOf<Scenario>) {
        auto* visit =
            new SBButton(scenarioTitle(scenario), {.kind = SBButtonKind::secondary, .wide = true}, this);
        connect(visit, &SBButton::clicked, this, [this, staged = scenario] { store_.simulate(staged); });
        column->addWidget(visit);
        visits_.push_back(visit);
    }
    column->addWidget(launch_);
    refresh();
}

void VisitOffers::refresh() {
    const Phase phase = store_.phase();
    const bool demo = !store_.settings().linkMode;
    const bool waiting = store_.waitingAlert().has_value();
    heading_->setVisible(demo);
    for (SBButton* visit : visits_)
        visit->setVisible(demo && phase == Phase::docked);
    launch_->setVisible(waiting);
    setVisible(waiting || (demo && phase == Phase::docked));
}

} // namespace velmora
