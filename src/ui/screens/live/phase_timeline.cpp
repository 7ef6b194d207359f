#include "ui/screens/live/phase_timeline.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

enum class StepProgress { done, current, pending };

StepProgress progressOf(std::size_t step, std::optional<std::size_t> current) {
    if (!current || step > *current)
        return StepProgress::pending;
    return step == *current ? StepProgress::current : StepProgress::done;
}

void paintMarker(QPainter& painter, QPointF center, StepProgress progress) {
    constexpr double diameter = Measure::timelineMarker;
    switch (progress) {
    case StepProgress::done:
        fillDisc(painter, center, diameter, SB::teal);
        paintIcon(painter, center, Measure::timelineTick, Icon::check, SB::page);
        break;
    case StepProgress::current:
        fillDisc(painter, center, diameter + 2 * Measure::timelineHalo, SB::dotBg);
        fillDisc(painter, center, diameter, SB::teal);
        fillDisc(painter, center, Measure::timelineHole, SB::page);
        break;
    case StepProgress::pending:
        fillDisc(painter, center, diameter, SB::page, SB::rule);
        break;
    }
}

} // namespace

PhaseTimeline::PhaseTimeline(QWidget* parent)
    : QWidget(parent), steps_{{tr("Spotted"), {Phase::awaitingApproval}},
                              {tr("Approved"), {Phase::launching}},
                              {tr("On its way"), {Phase::enRoute}},
                              {tr("Following"), {Phase::following, Phase::holding}},
                              {tr("Coming home"), {Phase::returning}},
                              {tr("Landed"), {Phase::landing}}} {
    declareRole(this, QAccessible::StaticText);
    QStringList titles;
    for (const TimelineStep& step : steps_)
        titles += step.title;
    setAccessibleDescription(titles.join(QStringLiteral(", ")));
    setFixedHeight(static_cast<int>(steps_.size()) * Measure::timelineRow);
    describe();
}

void PhaseTimeline::setPhase(Phase phase) {
    if (phase == phase_)
        return;
    phase_ = phase;
    describe();
    update();
}

void PhaseTimeline::setLine(bool line) {
    if (line == line_)
        return;
    line_ = line;
    setFixedHeight((line ? 1 : static_cast<int>(steps_.size())) * Measure::timelineRow);
    update();
}

std::optional<std::size_t> PhaseTimeline::currentStep() const {
    const auto step = std::ranges::find_if(
        steps_, [&](const TimelineStep& s) { return std::ranges::count(s.phases, phase_) > 0; });
    if (step == steps_.end())
        return std::nullopt;
    return static_cast<std::size_t>(step - steps_.begin());
}

void PhaseTimeline::describe() {
    const auto current = currentStep();
    setAccessibleName(
        current ? tr("Step %1 of %2: %3").arg(*current + 1).arg(steps_.size()).arg(steps_[*current].title)
                : tr("No mission under way"));
}

double PhaseTimeline::currentTitleWidth() const {
    const auto current = currentStep();
    return current ? textWidth(steps_[*current].title, Type::bodyStrong) : 0;
}

/// In one line the title of the current step moves the later ones to the right.
QPointF PhaseTimeline::markerCenter(std::size_t step) const {
    const double along = (static_cast<double>(step) + 0.5) * Measure::timelineRow;
    if (!line_)
        return {Measure::timelineMarkerX, along};
    const auto current = currentStep();
    const double title = current && step > *current ? Measure::timelineLineTitle + currentTitleWidth() +
                                                          Measure::gap8 - Measure::timelineMarker / 2
                                                    : 0;
    return {along - Measure::timelineRow / 2.0 + Measure::timelineMarkerX + title,
            Measure::timelineRow / 2.0};
}

/// Paints the line from this step to the next one.
void PhaseTimeline::paintConnector(QPainter& painter, std::size_t step) const {
    const double gap = Measure::timelineMarker / 2;
    const QPointF from = markerCenter(step), to = markerCenter(step + 1);
    const double length = Measure::timelineRow - 2 * gap;
    const QRectF line = line_ ? QRectF(to.x() - gap - length, to.y() - 0.5, length, 1)
                              : QRectF(from + QPointF(0, gap), QSizeF(1, length));
    painter.fillRect(line,
                     progressOf(step + 1, currentStep()) == StepProgress::pending ? SB::rule : SB::teal);
}

void PhaseTimeline::paintTitle(QPainter& painter, std::size_t step) const {
    const bool isCurrent = step == currentStep();
    const QPointF center = markerCenter(step);
    const double left = line_ ? center.x() + Measure::timelineLineTitle : Measure::timelineTitleX;
    const QRectF title(left, center.y() - Measure::timelineRow / 2.0, width() - left, Measure::timelineRow);
    if (isCurrent || !line_)
        drawText(painter, title, steps_[step].title, isCurrent ? Type::bodyStrong : Type::body,
                 isCurrent ? SB::ink : SB::body, Qt::AlignLeft | Qt::AlignVCenter);
}

void PhaseTimeline::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i + 1 < steps_.size(); ++i)
        paintConnector(painter, i);
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        paintMarker(painter, markerCenter(i), progressOf(i, currentStep()));
        paintTitle(painter, i);
    }
}

/// In one line the tooltip names the step under the mouse.
bool PhaseTimeline::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !line_)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    for (std::size_t i = 0; i < steps_.size(); ++i)
        if (std::abs(help->pos().x() - markerCenter(i).x()) <= Measure::timelineMarker)
            QToolTip::showText(help->globalPos(), steps_[i].title, this);
    return true;
}

} // namespace velmora
