#include "ui/screens/alert/answer_panel.h"

#include "ui/blocks/layouts.h"
#include "ui/blocks/message_line.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr auto failureTime = std::chrono::seconds(10);

} // namespace

AnswerPanel::AnswerPanel(AppStore& store, AnswerGuard& guard, QWidget* parent)
    : QWidget(parent), store_(store), failureTimer_(failureTime, UiTimer::Mode::singleShot) {
    note_ =
        new Text(tr("You must be able to see the drone while it flies. Nothing launches without your yes."),
                 Type::overlayNote, SB::muted, this);
    note_->setMaximumLines(1);
    message_ = new MessageLine(SB::alert, this);
    message_->hide();
    rows_ = bareLayout<QVBoxLayout>(this);
    for (QWidget* line : std::initializer_list<QWidget*>{note_, message_}) {
        line->setFixedHeight(Measure::approvalNoteRow);
        rows_->addWidget(line);
    }
    rows_->addWidget(buildButtons(guard));
    connect(hide_, &SBButton::clicked, this, &AnswerPanel::hideRequested);
    connect(&store_, &AppStore::commandFailed, this, &AnswerPanel::showFailure);
    connect(&failureTimer_, &UiTimer::timeout, this, &AnswerPanel::reset);
}

QWidget* AnswerPanel::buildButtons(AnswerGuard& guard) {
    auto* row = new QWidget(this);
    const SBButtonStyle quiet{.kind = SBButtonKind::secondary, .wide = true, .large = true};
    ignore_ = new AnswerButton(Command::ignore, CommandSource::card, guard, tr("Ignore"), quiet, row);
    hide_ = new SBButton(tr("Hide"), quiet, row);
    launch_ = new AnswerButton(
        Command::approve, CommandSource::card, guard, tr("Launch drone"),
        {.kind = SBButtonKind::primary, .wide = true, .large = true, .icon = Icon::paperPlane}, row);
    auto* layout = bareLayout<QHBoxLayout>(row, Measure::gap12);
    for (SBButton* button : {static_cast<SBButton*>(ignore_), hide_})
        layout->addWidget(button, Measure::approvalButtons[0]);
    layout->addWidget(launch_, Measure::approvalButtons[1]);
    hide_->hide();
    return row;
}

void AnswerPanel::setGap(int gap) {
    rows_->setSpacing(gap);
}

void AnswerPanel::reset() {
    failureTimer_.stop();
    failure_.clear();
    refresh();
}

void AnswerPanel::setHideable(bool hideable) {
    hideable_ = hideable;
    refresh();
}

void AnswerPanel::refresh() {
    const bool stale = store_.freshness() == Freshness::stale;
    const auto pending = store_.pendingCommand();
    if (pending)
        failure_.clear();
    ignore_->setSent(pending == Command::ignore);
    launch_->setSent(pending == Command::approve);
    offer(hide_, stale || hideable_);
    offer(ignore_, !stale && !hideable_);
    if (stale)
        releaseFocus(launch_);
    launch_->setEnabled(!stale);
    showMessage(stale ? tr("velmora is silent — this picture is %1 old")
                            .arg(age(store_.now() - store_.lastAnswerAt().value_or(store_.now())))
                      : failure_);
}

void AnswerPanel::showFailure(Command command, const QString& reason) {
    if (!answersAlert(command) || !store_.shownAlert())
        return;
    failure_ = failureText(reason);
    failureTimer_.start();
    refresh();
}

void AnswerPanel::showMessage(const QString& message) {
    message_->setText(message);
    note_->setVisible(message.isEmpty());
    message_->setVisible(!message.isEmpty());
}

/// Qt moves the focus of a hidden or disabled button to another one, also when its window becomes active
/// again. That one must not be "Launch drone".
void AnswerPanel::releaseFocus(SBButton* button) {
    if (window()->focusWidget() == button)
        setFocus(Qt::OtherFocusReason);
}

void AnswerPanel::offer(SBButton* button, bool offered) {
    if (!offered)
        releaseFocus(button);
    button->setVisible(offered);
}

} // namespace velmora
