#include "ui/screens/overview/overview_parts.h"

#include "ui/blocks/layouts.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QEvent>
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
    for (SBButton* button : {disarm_, arm_})
        button->installEventFilter(this);
    refresh();
}

/// Disables the buttons in link mode, where only the server arms and disarms.
void ArmSwitch::refresh() {
    const LiveState* state = store_.knownState();
    const bool armed = state && state->armed;
    const bool live = store_.freshness() == Freshness::live;
    dot_->setDotStyle({.color = armed ? SB::dot : SB::rule, .halo = armed && live});
    word_->setText(!state ? tr("Not known yet") : armed ? tr("Armed") : tr("Disarmed"));
    offer(armed);
    for (SBButton* button : {disarm_, arm_}) {
        button->setEnabled(!store_.settings().linkMode);
        button->setToolTip(store_.settings().linkMode
                               ? tr("velmora itself is armed and disarmed at the server")
                               : QString());
    }
}

/// Shows the button that changes the state. It takes over the focus of the other one.
void ArmSwitch::offer(bool armed) {
    SBButton* shown = armed ? disarm_ : arm_;
    SBButton* hidden = armed ? arm_ : disarm_;
    shown->show();
    if (hidden->hasFocus())
        shown->setFocus(Qt::OtherFocusReason);
    hidden->hide();
}

bool ArmSwitch::eventFilter(QObject* watched, QEvent* event) {
    return event->type() == QEvent::MouseButtonDblClick || QWidget::eventFilter(watched, event);
}

void ArmSwitch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::cardRadius, SB::panel);
}

VisitOffers::VisitOffers(AppStore& store, QWidget* parent) : QWidget(parent), store_(store) {
    auto* column = bareLayout<QVBoxLayout>(this, Measure::gap8);
    column->addWidget(new Text(tr("Simulate a visitor"), Type::groupHeading, SB::ink, this));
    column->addSpacing(Measure::gap4);
    for (const auto& [scenario, id] : rawValuesOf<Scenario>) {
        auto* visit =
            new SBButton(scenarioTitle(scenario), {.kind = SBButtonKind::secondary, .wide = true}, this);
        connect(visit, &SBButton::clicked, this, [this, staged = scenario] { store_.simulate(staged); });
        column->addWidget(visit);
    }
    refresh();
}

void VisitOffers::refresh() {
    setVisible(!store_.settings().linkMode && store_.phase() == Phase::docked);
}

} // namespace velmora
