#include "ui/screens/live/phase_timeline.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <algorithm>

namespace velmora {

namespace {

enum class Progress { done, current, pending };

Progress progressOf(std::size_t step, std::optional<std::size_t> current) {
    if (!current || step > *current)
        return Progress::pending;
    return step == *current ? Progress::current : Progress::done;
}

QPointF markerCenter(std::size_t step) {
    return {Measure::timelineMarkerX, (static_cast<double>(step) + 0.5) * Measure::timelineRow};
}

void paintConnector(QPainter& painter, std::size_t step, Progress next) {
    const double gap = Measure::timelineMarker / 2;
    const QPointF from = markerCenter(step) + QPointF(0, gap), to = markerCenter(step + 1) - QPointF(0, gap);
    painter.fillRect(QRectF(from, QPointF(to.x() + 1, to.y())),
                     next == Progress::pending ? SB::rule : SB::teal);
}

void paintMarker(QPainter& painter, QPointF center, Progress progress) {
    constexpr double diameter = Measure::timelineMarker;
    switch (progress) {
    case Progress::done:
        fillDisc(painter, center, diameter, SB::teal);
        paintIcon(painter, center, Measure::timelineTick, Icon::check, SB::page);
        break;
    case Progress::current:
        fillDisc(painter, center, diameter + 2 * Measure::timelineHalo, SB::dotBg);
        fillDisc(painter, center, diameter, SB::teal);
        fillDisc(painter, center, Measure::timelineHole, SB::page);
        break;
    case Progress::pending:
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
    setFixedHeight(static_cast<int>(static_cast<double>(steps_.size()) * Measure::timelineRow));
    declareRole(this, QAccessible::StaticText);
    describe();
}

void PhaseTimeline::setPhase(Phase phase) {
    if (phase == phase_)
        return;
    phase_ = phase;
    describe();
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

void PhaseTimeline::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto current = currentStep();
    for (std::size_t i = 0; i + 1 < steps_.size(); ++i)
        paintConnector(painter, i, progressOf(i + 1, current));
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        const Progress progress = progressOf(i, current);
        paintMarker(painter, markerCenter(i), progress);
        const bool isCurrent = progress == Progress::current;
        const QRectF title(Measure::timelineTitleX, static_cast<double>(i) * Measure::timelineRow,
                           width() - Measure::timelineTitleX, Measure::timelineRow);
        drawText(painter, title, steps_[i].title, isCurrent ? Type::bodyStrong : Type::body,
                 isCurrent ? SB::ink : SB::body, Qt::AlignLeft | Qt::AlignVCenter);
    }
}

} // namespace velmora
