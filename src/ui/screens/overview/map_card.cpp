#include "ui/screens/overview/map_card.h"

#include "model/truncated.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

/// Draws one legend entry at `x` and returns the x of the next one.
double paintKey(QPainter& painter, const QRectF& row, double x, const QString& name, const QColor& color,
                bool dashed) {
    constexpr double stroke = 2;
    QPen pen(color, stroke, Qt::SolidLine, Qt::FlatCap);
    if (dashed)
        pen.setDashPattern({4 / stroke, 4 / stroke});
    painter.setPen(pen);
    painter.drawLine(QPointF(x, row.center().y()), QPointF(x + Measure::legendSample, row.center().y()));
    const QRectF words(x + Measure::legendSample + Measure::legendGap, row.top(), row.width(), row.height());
    drawText(painter, words, name, Type::legend, SB::muted, Qt::AlignVCenter);
    return words.left() + textWidth(name, Type::legend) + Measure::gap16;
}

} // namespace

MapCard::MapCard(AppStore& store, QWidget* parent)
    : MapPanel({Measure::mapCardMinimum, Measure::overviewMapMinimum}, parent), store_(store) {
    auto* title = new Text(tr("Your grounds, live"), Type::groupHeading, SB::ink, this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, Measure::mapLegend);
    column->setSpacing(0);
    column->addWidget(title, 0, Qt::AlignLeft);
    column->addSpacing(Measure::mapTitle - title->sizeHint().height());
    column->addLayout(mapArea(Qt::AlignLeft | Qt::AlignTop, SB::page), 1);
}

/// Uses the gap below to give the map its least height, if that is enough.
QSize MapCard::fitted(QSize room) {
    const int wanted = Measure::overviewMap + rowsHeight();
    const bool gapHelps = wanted - room.height() <= Measure::mapGap;
    return MapPanel::fitted({room.width(), gapHelps ? std::max(room.height(), wanted) : room.height()});
}

void MapCard::refresh() {
    map_->setState(store_.knownState(), store_.settings(), store_.freshness());
    const QString buffer =
        tr("%1 m buffer inside your boundary").arg(truncated(store_.settings().boundaryBuffer));
    if (buffer == buffer_)
        return;
    buffer_ = buffer;
    update();
}

void MapCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF legend(0, height() - Measure::mapLegend + 4, width(), Measure::mapLegend - 4);
    double x = paintKey(painter, legend, 0, tr("Drone"), SB::dTeal, true);
    x = paintKey(painter, legend, x, tr("Visitor"), SB::lilac, false);
    x = paintKey(painter, legend, x, tr("Camera view"), SB::softBlue, false);
    if (x - Measure::gap8 + textWidth(buffer_, Type::legend) <= width())
        drawText(painter, legend, buffer_, Type::legend, SB::muted, Qt::AlignVCenter | Qt::AlignRight);
}

} // namespace velmora
