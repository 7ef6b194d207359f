#include "ui/guard/answer_guard.h"

#include "x11/x11.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace velmora {

AnswerGuard::AnswerGuard(AppStore& store, QWidget& window)
    : QObject(&window), store_(store), window_(window) {
    qApp->installEventFilter(this);
    connect(&beat_, &UiTimer::timeout, this, &AnswerGuard::beat);
    connect(&store_, &AppStore::stateChanged, this, &AnswerGuard::followAlert);
    connect(&store_, &AppStore::freshnessChanged, this, &AnswerGuard::followAlert);
    connect(&store_, &AppStore::pendingCommandChanged, this, &AnswerGuard::followAlert);
    followAlert();
}

void AnswerGuard::followAlert() {
    if (std::exchange(alert_, store_.waitingAlert()) == alert_)
        return;
    rule_.cardGone();
    invalidatePresses();
    beat_.setActive(alert_.has_value());
}

void AnswerGuard::cardPainted() {
    if (alert_ && !rule_.cardWasPainted())
        rule_.cardPainted(clock_.now());
}

bool AnswerGuard::isOpen() const {
    return alert_ && rule_.counts(clock_.now());
}

std::optional<AnswerGuard::Press> AnswerGuard::admit(std::uint64_t stamp) {
    if (!passesStallCheck() || !alert_ || !rule_.counts(eventClock_.began(stamp, clock_.now())))
        return std::nullopt;
    return Press{*alert_, round_};
}

void AnswerGuard::answer(Command command, const std::optional<Press>& press, CommandSource source) {
    const bool counts = passesStallCheck() && press && press->round == round_;
    if (!counts || !store_.answer(command, press->alert, source))
        return;
    invalidatePresses(); // a double click answers once
}

/// The clock of the time stamps stops during suspend, so its offset is measured again after a stall.
bool AnswerGuard::passesStallCheck() {
    if (rule_.beat(clock_.now()))
        return true;
    eventClock_ = {};
    invalidatePresses();
    return false;
}

void AnswerGuard::beat() {
    if (passesStallCheck())
        update();
    noticeKeysUp();
}

void AnswerGuard::noticeKeysUp() {
    if (!keys_.anyHeld())
        return;
    if (const auto down = X11::keysDown())
        keys_.noticeUp([&](std::uint32_t code) { return code < down->size() && !(*down)[code]; },
                       clock_.now());
}

void AnswerGuard::invalidatePresses() {
    ++round_;
    update();
}

void AnswerGuard::update() {
    if (std::exchange(wasOpen_, isOpen()) != wasOpen_)
        emit changed();
}

/// Qt sends every input event to a window first; key releases in menus and dialogs too.
bool AnswerGuard::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_)
        followWindow(*event);
    if (!watched->isWindowType() || !event->isInputEvent())
        return false;
    eventClock_.began(clock_.stampOf(*static_cast<QInputEvent*>(event)),
                      clock_.now()); // samples the delay of delivery
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress)
        return dropsKey(static_cast<QKeyEvent&>(*event));
    if (event->type() == QEvent::KeyRelease)
        keys_.released(eventOf(static_cast<QKeyEvent&>(*event), clock_.now()));
    return false;
}

void AnswerGuard::followWindow(const QEvent& event) {
    switch (event.type()) {
    case QEvent::Hide: // it will be painted again
        rule_.cardGone();
        invalidatePresses();
        break;
    case QEvent::WindowActivate:
        rule_.windowActivated(clock_.now());
        invalidatePresses();
        break;
    case QEvent::WindowDeactivate:
        rule_.windowDeactivated();
        keys_.forget();
        invalidatePresses();
        break;
    default:
        break;
    }
}

bool AnswerGuard::dropsKey(QKeyEvent& key) {
    if (KeyPresses::isAnswerKey(key.key()) || key.key() == Qt::Key_Delete)
        return dropsPress(key);
    if (key.type() != QEvent::ShortcutOverride)
        return false;
    const bool repeats =
        keys_.pressed(eventOf(key, eventClock_.began(clock_.stampOf(key), clock_.now()))).isRepeat;
    const bool drops = repeats && key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (drops)
        key.accept(); // an accepted ShortcutOverride triggers no shortcut
    return drops;
}

bool AnswerGuard::dropsPress(QKeyEvent& key) {
    const bool judged = key.type() == QEvent::KeyPress && verdict_ && verdict_->key == key.key() &&
                        (clock_.stampOf(key) == 0 || clock_.stampOf(key) == verdict_->stamp);
    const bool drops = judged ? !verdict_->mayPress : !mayPress(key);
    verdict_.reset();
    if (key.type() == QEvent::ShortcutOverride)
        verdict_ = {key.key(), clock_.stampOf(key), !drops};
    if (drops)
        key.accept();
    return drops;
}

bool AnswerGuard::mayPress(const QKeyEvent& key) {
    const KeyPresses::Press press =
        keys_.pressed(eventOf(key, eventClock_.began(clock_.stampOf(key), clock_.now())));
    if (alert_ && KeyPresses::isAnswerKey(key.key()))
        return !press.isRepeat && press.othersUp && admit(clock_.stampOf(key));
    const bool types = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    return !press.isRepeat || types;
}

KeyPresses::Event AnswerGuard::eventOf(const QKeyEvent& key, EventTime time) const {
    const auto code = key.nativeScanCode() ? key.nativeScanCode() : static_cast<quint32>(key.key());
    return {code, KeyPresses::isAnswerKey(key.key()), clock_.stampOf(key), time, key.isAutoRepeat()};
}

} // namespace velmora
