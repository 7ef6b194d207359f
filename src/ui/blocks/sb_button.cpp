#include "ui/blocks/sb_button.h"

#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QEvent>
#include <QKeyEvent>

#include <cmath>

namespace velmora {

namespace {

constexpr double paleOpacity = 0.6;

const TextStyle& textStyleOf(const SBButtonStyle& style) {
    return style.large ? Type::buttonLarge : Type::button;
}

} // namespace

SBButtonColors SBButton::colorsOf(SBButtonKind kind, State state) {
    using SB::faded;
    using SB::none;
    const auto choose = [state](SBButtonColors normal, SBButtonColors hover, SBButtonColors pressed,
                                SBButtonColors disabled) {
        switch (state) {
        case State::hover:
            return hover;
        case State::pressed:
            return pressed;
        case State::disabled:
            return disabled;
        case State::normal:
            break;
        }
        return normal;
    };
    const SBButtonColors outlineOff{SB::page, SB::rule2, faded(SB::muted, 0.6)};
    switch (kind) {
    case SBButtonKind::primary:
        return choose({SB::ink, none, SB::page}, {SB::mixed(SB::page, SB::ink, 0.88), none, SB::page},
                      {SB::navy, none, SB::page}, {SB::rule2, none, faded(SB::muted, 0.8)});
    case SBButtonKind::secondary:
        return choose({SB::page, SB::edge, SB::ink}, {SB::panel, SB::muted, SB::ink},
                      {SB::rule2, SB::muted, SB::ink}, outlineOff);
    case SBButtonKind::quiet:
        return choose({none, none, SB::blue}, {SB::panel, none, SB::blue}, {SB::rule2, none, SB::ink},
                      {none, none, faded(SB::muted, 0.6)});
    case SBButtonKind::danger:
        return choose({SB::mixed(SB::page, SB::alert, 0.07), faded(SB::alert, 0.6), SB::alert},
                      {SB::alert, SB::alert, SB::page},
                      {SB::mixed(SB::alert, SB::navy, 0.25), none, SB::page}, outlineOff);
    case SBButtonKind::onDark:
        break;
    }
    return choose({faded(SB::dTitle, 0.1), faded(SB::dTitle, 0.4), SB::dTitle},
                  {faded(SB::dTitle, 0.16), faded(SB::dTitle, 0.5), SB::dTitle},
                  {faded(SB::dTitle, 0.24), faded(SB::dTitle, 0.5), SB::dTitle},
                  {faded(SB::dTitle, 0.05), faded(SB::dTitle, 0.1), faded(SB::dLabel, 0.55)});
}

SBButton::SBButton(const QString& text, const SBButtonStyle& style, QWidget* parent)
    : QAbstractButton(parent), style_(style), fade_(*this, Motion::hover) {
    setText(text);
    setAccessibleName(text);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(style.wide ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
    FocusRing::setRingStyle(this, {Measure::buttonRadius, style.kind == SBButtonKind::onDark});
    shown_ = target_ = colorsOf(style_.kind, wantedState());
    connect(&fade_, &Transition::changed, this, [this] {
        const double share = fade_.value();
        shown_ = {SB::mixed(from_.fill, target_.fill, share), SB::mixed(from_.border, target_.border, share),
                  SB::mixed(from_.text, target_.text, share)};
        update();
    });
    connect(this, &SBButton::pressed, this, &SBButton::fadeToState);
    connect(this, &SBButton::released, this, &SBButton::fadeToState);
}

void SBButton::setPale(bool pale) {
    if (pale == pale_)
        return;
    pale_ = pale;
    fadeToState();
    update();
}

void SBButton::setSent(bool sent) {
    if (sent == sent_)
        return;
    sent_ = sent;
    setAccessibleDescription(sent ? sentText() : QString());
    if (sent)
        setDown(false);
    fadeToState();
    update();
}

QSize SBButton::sizeHint() const {
    const int padding = style_.large                         ? Measure::buttonPaddingLarge
                        : style_.kind == SBButtonKind::quiet ? Measure::buttonPaddingQuiet
                                                             : Measure::buttonPadding;
    double width = 2.0 * padding + 2 + textWidth(text(), textStyleOf(style_));
    if (style_.icon)
        width += Measure::buttonIcon + Measure::gap8;
    return {static_cast<int>(std::ceil(width)),
            style_.large ? Measure::buttonHeightLarge : Measure::buttonHeight};
}

SBButton::State SBButton::wantedState() const {
    if (!isEnabled())
        return State::disabled;
    if (isDown())
        return State::pressed;
    return underMouse() && !pale_ && !sent_ ? State::hover : State::normal;
}

void SBButton::fadeToState() {
    const SBButtonColors wanted = colorsOf(style_.kind, wantedState());
    if (wanted == target_)
        return;
    from_ = shown_;
    target_ = wanted;
    fade_.move(0, 1);
}

bool SBButton::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::EnabledChange:
    case QEvent::Show: {
        const bool handled = QAbstractButton::event(event);
        fadeToState();
        return handled;
    }
    default:
        break;
    }
    return QAbstractButton::event(event);
}

bool SBButton::hitButton(const QPoint& at) const {
    return !sent_ && QAbstractButton::hitButton(at);
}

void SBButton::keyPressEvent(QKeyEvent* event) {
    if (sent_)
        event->ignore();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void SBButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (pale_ || sent_)
        painter.setOpacity(paleOpacity);
    if (shown_.border.alpha() > 0)
        fillRounded(painter, rect(), Measure::buttonRadius, shown_.fill, shown_.border);
    else
        fillRounded(painter, rect(), Measure::buttonRadius, shown_.fill);

    const TextStyle& style = textStyleOf(style_);
    const QString shownText = sent_ ? sentText() : text();
    const bool hasIcon = style_.icon && !sent_;
    const double words = textWidth(shownText, style);
    const double icon = hasIcon ? Measure::buttonIcon + Measure::gap8 : 0;
    double x = (width() - words - icon) / 2;
    if (hasIcon) {
        paintIcon(painter, {x + Measure::buttonIcon / 2.0, height() / 2.0}, Measure::buttonIcon, *style_.icon,
                  shown_.text);
        x += icon;
    }
    drawText(painter, QRectF(x, 0, words + 1, height()), shownText, style, shown_.text, Qt::AlignVCenter);
}

} // namespace velmora
