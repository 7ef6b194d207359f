#include "ui/screens/live/flight_controls.h"

#include "ui/blocks/layouts.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QVBoxLayout>

namespace velmora {

FlightControls::FlightControls(AppStore& store, QWidget* parent) : QWidget(parent), store_(store) {
    outer_ = bareLayout<QVBoxLayout>(this, Measure::gap12);
    outer_->addWidget(new Text(tr("Controls"), Type::groupHeading, SB::ink, this));
    auto* column = new QVBoxLayout;
    column->setSpacing(Measure::gap8);
    outer_->addLayout(column);
    explanation_ = new Text({}, Type::controlsNote, SB::muted, this);
    explanationBlock_ = new QWidget(this);
    auto* above = new QVBoxLayout(explanationBlock_);
    above->setContentsMargins(0, 0, 0, Measure::gap4);
    above->addWidget(explanation_);
    column->addWidget(explanationBlock_);

    const auto add = [&](const QString& text, SBButtonStyle style) {
        auto* button = new SBButton(text, style, this);
        column->addWidget(button);
        return button;
    };
    hold_ = add(tr("Hold position"), {.kind = SBButtonKind::secondary, .wide = true});
    resume_ = add(tr("Resume following"), {.kind = SBButtonKind::secondary, .wide = true});
    returnHome_ = add(tr("Return home"), {.kind = SBButtonKind::primary, .wide = true});
    land_ = add(tr("Land now"), {.kind = SBButtonKind::danger, .wide = true});
    simulate_ = add(tr("Simulate a visitor"), {.kind = SBButtonKind::secondary, .wide = true});

    connect(hold_, &SBButton::clicked, this, [this] { store_.send(Command::hold, CommandSource::live); });
    connect(resume_, &SBButton::clicked, this, [this] { store_.send(Command::resume, CommandSource::live); });
    connect(returnHome_, &SBButton::clicked, this,
            [this] { store_.send(Command::returnHome, CommandSource::live); });
    connect(land_, &SBButton::clicked, this, &FlightControls::landRequested);
    connect(simulate_, &SBButton::clicked, this,
            [this] { store_.simulate(rawValuesOf<Scenario>.front().first); });
    refresh();
}

void FlightControls::setLow(bool low) {
    outer_->setSpacing(low ? Measure::controlsGapLow : Measure::gap12);
}

void FlightControls::refresh() {
    const Phase phase = store_.phase();
    const bool flying = airborne(phase);
    explanation_->setText(
        phase == Phase::awaitingApproval
            ? tr("Approve or ignore the alert to continue.")
            : tr("Nothing to control — the drone launches only after you approve an alert."));
    explanationBlock_->setVisible(!flying);
    const auto offer = [this](SBButton* button, bool offered) {
        if (!offered && button->hasFocus())
            setFocus(Qt::OtherFocusReason); // otherwise hiding the button moves the focus to another command
        button->setVisible(offered);
    };
    offer(hold_, flying && phase != Phase::holding);
    offer(resume_, phase == Phase::holding);
    offer(returnHome_, flying);
    offer(land_, flying);
    const auto pending = store_.pendingCommand();
    hold_->setSent(pending == Command::hold);
    resume_->setSent(pending == Command::resume);
    returnHome_->setSent(pending == Command::returnHome);
    land_->setSent(pending == Command::land);
    offer(simulate_, !flying && !store_.settings().linkMode);
}

} // namespace velmora
