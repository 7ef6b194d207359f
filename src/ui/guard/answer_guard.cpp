#include "ui/guard/answer_guard.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QWindow>

#include <utility>

namespace velmora {

namespace {

constexpr auto beatInterval = std::chrono::milliseconds(50);

} // namespace

EventTime steadyTime() {
    return std::chrono::duration_cast<EventTime>(std::chrono::steady_clock::now().time_since_epoch());
}

AnswerGuard::AnswerGuard(AppStore& store, QWidget& window, std::function<EventTime()> clock)
    : QObject(&window), store_(store), window_(window), clock_(std::move(clock)) {
    window_.installEventFilter(this);
    beat_.setTimerType(Qt::PreciseTimer);
    beat_.setInterval(beatInterval);
    connect(&beat_, &QTimer::timeout, this, &AnswerGuard::beat);
    connect(&store_, &AppStore::stateChanged, this, &AnswerGuard::followAlert);
    connect(&store_, &AppStore::freshnessChanged, this, &AnswerGuard::followAlert);
    followAlert();
}

void AnswerGuard::followAlert() {
    if (std::exchange(alert_, store_.waitingAlert()) == alert_)
        return;
    rule_.cardGone();
    closeAgain();
    alert_ ? beat_.start() : beat_.stop();
}

void AnswerGuard::cardPainted() {
    if (alert_ && !rule_.cardWasPainted())
        rule_.cardPainted(clock_());
}

bool AnswerGuard::isOpen() const {
    return alert_ && rule_.counts(clock_());
}

std::optional<AnswerGuard::Press> AnswerGuard::admit(std::uint64_t stamp) {
    const EventTime now = clock_();
    if (!rule_.beat(now))
        closeAgain();
    if (!alert_ || !rule_.counts(eventClock_.began(stamp, now)))
        return std::nullopt;
    return Press{*alert_, round_};
}

void AnswerGuard::answer(Command command, const std::optional<Press>& press) {
    beat();
    if (!press || press->round != round_ || !store_.answer(command, press->alert))
        return;
    rule_.restart(clock_()); // a double click answers once
    closeAgain();
    emit answered(press->alert);
}

void AnswerGuard::beat() {
    if (rule_.beat(clock_()))
        update();
    else
        closeAgain();
}

void AnswerGuard::closeAgain() {
    ++round_;
    update();
}

void AnswerGuard::update() {
    if (std::exchange(wasOpen_, isOpen()) != wasOpen_)
        emit changed();
}

bool AnswerGuard::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_) {
        followWindow(*event);
        return false;
    }
    if (event->isInputEvent()) // every one is a sample of the delay
        eventClock_.began(static_cast<QInputEvent*>(event)->timestamp(), clock_());
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress)
        return withholds(static_cast<QKeyEvent&>(*event));
    if (event->type() == QEvent::KeyRelease) {
        const auto* key = static_cast<QKeyEvent*>(event);
        keys_.released({key->key(), key->timestamp(), clock_()});
    }
    return false;
}

void AnswerGuard::followWindow(const QEvent& event) {
    switch (event.type()) {
    case QEvent::Show:
        window_.windowHandle()->installEventFilter(this);
        break;
    case QEvent::Hide: // it will be painted again
        rule_.cardGone();
        closeAgain();
        break;
    case QEvent::WindowActivate:
        rule_.windowActivated(clock_());
        closeAgain();
        break;
    case QEvent::WindowDeactivate:
        rule_.windowDeactivated();
        keys_.forget();
        closeAgain();
        break;
    default:
        break;
    }
}

bool AnswerGuard::withholds(QKeyEvent& key) {
    if (!AnswerKeys::contains(key.key()))
        return false;
    const bool sameStamp = key.timestamp() == 0 || key.timestamp() == judgedStamp_;
    const bool secondEvent = key.type() == QEvent::KeyPress && judgedKey_ == key.key() && sameStamp;
    if (!secondEvent)
        judgedMayPress_ = mayPress(key);
    judgedKey_ = key.type() == QEvent::ShortcutOverride ? key.key() : 0;
    judgedStamp_ = key.timestamp();
    if (!judgedMayPress_)
        key.accept();
    return !judgedMayPress_;
}

bool AnswerGuard::mayPress(const QKeyEvent& key) {
    const AnswerKeys::Press press = keys_.pressed(
        {key.key(), key.timestamp(), eventClock_.began(key.timestamp(), clock_()), key.isAutoRepeat()});
    if (alert_)
        return !press.isRepeat && press.othersUp && admit(key.timestamp());
    const bool onButton = qobject_cast<QAbstractButton*>(window_.focusWidget());
    return !press.isRepeat || !onButton;
}

} // namespace velmora
