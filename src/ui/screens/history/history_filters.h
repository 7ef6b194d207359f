#pragma once

#include "store/history.h"
#include "ui/screens/history/history_filter.h"

#include <QWidget>

namespace velmora {

class ActiveFilters;
class MenuButton;
class SegmentedChoice;
class Text;
class TextField;

/// The controls that set the history's filter, and the number of visits that match it.
class HistoryFilters : public QWidget {
    Q_OBJECT

public:
    explicit HistoryFilters(QWidget* parent);

    const HistoryFilter& filter() const { return filter_; }
    /// Emits changed() if it differs.
    void setFilter(const HistoryFilter& filter);
    /// What is filtered, as the controls say it: "Driveway · 30 days"; empty if nothing is.
    QString words() const;
    /// Offers the cameras of these visits, and a choice of demo visits if there are any. Ends a filter that
    /// is not offered any more: it would hide visits without a visible reason.
    void offer(const std::vector<HistoryEntry>& history);
    /// Shows how many of all visits match.
    void setCount(std::size_t matching, std::size_t all);
    /// Moves the keyboard focus to the search field.
    void focusSearch();
    void clearSearch();

signals:
    void changed();
    /// The keyboard leaves the search field, or the last of the filters that it could remove.
    void left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectControls();
    void showFilter();

    HistoryFilter filter_;
    QStringList cameras_; ///< names in the camera menu
    TextField* search_;
    SegmentedChoice* flight_;
    MenuButton* camera_;
    MenuButton* span_;
    MenuButton* demo_;
    Text* count_;
    ActiveFilters* active_;
};

} // namespace velmora
