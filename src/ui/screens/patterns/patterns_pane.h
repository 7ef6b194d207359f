#pragma once

#include "model/live_state.h"
#include "model/settings.h"
#include "ui/charts/pattern_words.h"
#include "ui/screens/patterns/visit_figures.h"

#include <QWidget>

class QBoxLayout;

namespace velmora {

class Headline;
class HeatKey;
class HeatMap;
class LinkButton;
class PatternFacts;
class ScrollArea;
class Text;
class VisitMatrix;

/// What a list of visits has in common: a sentence, where the visitors walked, when they came, and how owner
/// and drone responded.
class PatternsPane : public QWidget {
    Q_OBJECT

public:
    explicit PatternsPane(QWidget* parent);

    /// The time up to `to` that the visits cover. Without `from` it begins with the first visit.
    struct Period {
        VisitSpan span = VisitSpan::all;
        std::optional<Date> from;
        Date to;
    };
    /// The visits are the newest first. The state is the one whose site is shown.
    void setVisits(const std::vector<HistoryEntry>& visits, const Period& period, const LiveState& state,
                   const Settings& settings);
    const VisitPatterns& patterns() const { return figures_.patterns(); }

signals:
    /// The owner chose the hours from `from` until before `to`, in local time. `weekday` 0 is Monday.
    void hoursChosen(int weekday, int from, int to);
    /// The owner chose a place of the site, in metres.
    void placeChosen(velmora::P place);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* buildMap();
    QWidget* buildTimes();
    void connectCharts();
    void showFigures();
    void showHeading(const Period& period);
    void fitHeadline(int width);
    void arrange();
    void fitCharts(int width, int column);

    VisitFigures figures_;
    ScrollArea* area_;
    QWidget* content_;
    Text* eyebrow_;
    Headline* headline_;
    Text* tooFew_;
    QBoxLayout* upper_; ///< the map, and the facts beside or below it
    QWidget* mapPart_;
    HeatMap* map_;
    HeatKey* key_;
    PatternFacts* facts_;
    QWidget* times_;
    LinkButton* group_;
    VisitMatrix* matrix_;
};

} // namespace velmora
