#include "ui/charts/response_parts.h"

#include "language/language.h"
#include "model/mission_evidence.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QPainterPath>

#include <algorithm>
#include <numeric>

namespace velmora {

namespace {

QString stepName(ResponseStep step) {
    switch (step) {
    case ResponseStep::seen:
        return Words::tr("Seen");
    case ResponseStep::answered:
        return Words::tr("answered");
    case ResponseStep::airborne:
        return Words::tr("airborne");
    case ResponseStep::onStation:
        return Words::tr("on station");
    case ResponseStep::comingHome:
        return Words::tr("coming home");
    case ResponseStep::ended:
        return Words::tr("ended");
    }
    return {};
}

QString partName(ResponseStep from, ResponseStep to, Outcome outcome) {
    switch (from) {
    case ResponseStep::seen:
        return to == ResponseStep::answered || outcome == Outcome::ignored ? Words::tr("Seen to your answer")
                                                                           : Words::tr("Seen to the end");
    case ResponseStep::answered:
        return to == ResponseStep::airborne ? Words::tr("Your answer to take-off")
                                            : Words::tr("After your answer");
    case ResponseStep::airborne:
        return Words::tr("On its way to the visitor");
    case ResponseStep::onStation:
        return to == ResponseStep::comingHome ? Words::tr("Following", "part of a response")
                                              : Words::tr("Following and landing");
    case ResponseStep::comingHome:
    case ResponseStep::ended:
        break;
    }
    return Words::tr("Coming home and landing");
}

QColor partColor(ResponseStep from) {
    switch (from) {
    case ResponseStep::seen:
        return SB::purple;
    case ResponseStep::answered:
        return SB::mixed(SB::purple, SB::blue, 0.5);
    case ResponseStep::airborne:
        return SB::blue;
    case ResponseStep::onStation:
        return SB::teal;
    case ResponseStep::comingHome:
    case ResponseStep::ended:
        break;
    }
    return SB::dot;
}

} // namespace

QString responseSentence(const MissionRecord& record) {
    const auto moments = responseTimeline(record);
    QString text = stepName(moments.front().step);
    for (std::size_t i = 1; i < moments.size(); ++i) {
        const bool landed = moments[i].step == ResponseStep::ended && flew(record.outcome);
        text += QStringLiteral(" → ") + duration(moments[i].time - moments[i - 1].time) +
                QStringLiteral(" → ") + (landed ? Words::tr("landed") : stepName(moments[i].step));
    }
    return text;
}

std::vector<ResponsePart> responseParts(const MissionRecord& record) {
    const auto moments = responseTimeline(record);
    std::vector<ResponsePart> parts;
    for (std::size_t i = 1; i < moments.size(); ++i) {
        const ResponseStep from = moments[i - 1].step;
        parts.push_back({partName(from, moments[i].step, record.outcome), partColor(from),
                         std::max(moments[i].time - moments[i - 1].time, Seconds{0})});
    }
    return parts;
}

void paintResponseBar(QPainter& painter, const QRectF& bar, const std::vector<ResponsePart>& parts) {
    constexpr double minimum = 2; // width of a part in pixels
    const auto count = static_cast<double>(parts.size());
    const double shared = bar.width() - count * minimum - (count - 1) * Measure::responseGap;
    const Seconds total =
        std::accumulate(parts.begin(), parts.end(), Seconds{0},
                        [](Seconds sum, const ResponsePart& part) { return sum + part.length; });
    QPainterPath rounded;
    rounded.addRoundedRect(bar, bar.height() / 2, bar.height() / 2);
    double left = bar.left();
    for (const ResponsePart& part : parts) {
        const double share = total.count() > 0 ? part.length / total : 1 / count;
        QPainterPath piece;
        piece.addRect(left, bar.top(), minimum + share * shared, bar.height());
        painter.fillPath(piece & rounded, part.color);
        left += piece.boundingRect().width() + Measure::responseGap;
    }
}

} // namespace velmora
