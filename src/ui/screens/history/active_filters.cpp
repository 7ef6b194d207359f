#include "ui/screens/history/active_filters.h"

#include "language/language.h"
#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/flow_layout.h"
#include "ui/blocks/focus_ring.h"
#include "ui/blocks/tool_tip.h"
#include "ui/charts/outcomes.h"
#include "ui/charts/pattern_words.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QAbstractButton>

#include <cmath>
#include <utility>

namespace velmora {

namespace {

QString hoursText(const HistoryFilter::Hours& hours) {
    const QString day = displayLocale().standaloneDayName(hours.weekday + 1);
    if (hours.to == hours.from + 1)
        return ActiveFilters::tr("%1 %2", "weekday, time").arg(day, hourText(hours.from));
    return ActiveFilters::tr("%1 %2 to %3", "weekday, times")
        .arg(day, hourText(hours.from), hourText(hours.to));
}

} // namespace

/// A filter's name with a cross.
class ActiveFilters::FilterButton : public QAbstractButton {
public:
    explicit FilterButton(QWidget* parent) : QAbstractButton(parent) {
        setAccessibleDescription(ActiveFilters::tr("Remove this filter"));
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        clickOnEnter(this);
        FocusRing::setRingStyle(this, {Measure::thumbnailRadius});
        hide();
    }

    void setName(const QString& name) {
        setText(name);
        setAccessibleName(name);
        updateGeometry();
        update();
    }

    QSize sizeHint() const override {
        return {static_cast<int>(std::ceil(textWidth(text(), Type::label2Medium))) + around,
                Measure::chipHeight};
    }

protected:
    void resizeEvent(QResizeEvent*) override {
        setToolTipIfElided(*this, text(), width() < sizeHint().width());
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor fill = isDown() ? SB::rule2 : underMouse() ? SB::panel : SB::page;
        fillRounded(painter, rect(), Measure::thumbnailRadius, fill, SB::edge);
        drawText(painter, QRectF(rect()).adjusted(Measure::chipPadding, 0, Measure::chipPadding - around, 0),
                 text(), Type::label2Medium, SB::ink, Qt::AlignVCenter);
        paintIcon(painter, {width() - Measure::chipPadding - cross / 2.0, height() / 2.0}, cross, Icon::close,
                  underMouse() ? SB::ink : SB::muted);
    }

private:
    static constexpr int cross = 8;
    static constexpr int around = Measure::chipPadding + Measure::gap8 + cross + Measure::chipPadding;
};

ActiveFilters::ActiveFilters(QWidget* parent) : QWidget(parent) {
    setAccessibleName(tr("Active filters"));
    setLayout(new FlowLayout(Measure::gap8, Measure::gap8));
    hours_ = add(&HistoryFilter::hours);
    place_ = add(&HistoryFilter::place);
    outcome_ = add(&HistoryFilter::outcome);
    hide();
}

template <class Part>
ActiveFilters::FilterButton* ActiveFilters::add(std::optional<Part> HistoryFilter::*part) {
    auto* button = new FilterButton(this);
    layout()->addWidget(button);
    connect(button, &QAbstractButton::clicked, this, [this, part] {
        HistoryFilter rest = filter_;
        (rest.*part).reset();
        emit removed(rest);
    });
    return button;
}

QStringList ActiveFilters::words(const HistoryFilter& filter) {
    QStringList words;
    if (filter.hours)
        words.append(hoursText(*filter.hours));
    if (filter.place)
        words.append(tr("Past one place"));
    if (filter.outcome)
        words.append(outcomeText(*filter.outcome));
    return words;
}

/// Hiding the focused button would move the focus to another control, which the next key press would trigger.
void ActiveFilters::setFilter(const HistoryFilter& filter) {
    filter_ = filter;
    const std::pair<FilterButton*, QString> buttons[] = {
        {hours_, filter.hours ? hoursText(*filter.hours) : QString()},
        {place_, filter.place ? tr("Past this place") : QString()},
        {outcome_, filter.outcome ? outcomeText(*filter.outcome) : QString()}};
    QWidget* stays = nullptr;
    bool focusGoes = false;
    for (const auto& [button, name] : buttons) {
        focusGoes |= name.isEmpty() && button->hasFocus();
        if (name.isEmpty())
            continue;
        button->setName(name);
        button->show();
        stays = button;
    }
    if (focusGoes && stays)
        stays->setFocus(Qt::TabFocusReason);
    else if (focusGoes)
        emit focusNeeded();
    for (const auto& [button, name] : buttons)
        button->setVisible(!name.isEmpty());
    setVisible(stays);
}

} // namespace velmora
