#pragma once

#include "ui/screens/history/history_filter.h"

#include <QWidget>

#include <array>

namespace velmora {

/// The filters that no menu shows, set by clicks in the patterns: each a button that ends it.
class ActiveFilters : public QWidget {
    Q_OBJECT

public:
    /// The filters that clicks set, in words.
    static QStringList words(const HistoryFilter& filter);
    explicit ActiveFilters(QWidget* parent);

    /// Hides itself if none of these filters is set.
    void setFilter(const HistoryFilter& filter);

signals:
    void removed(const velmora::HistoryFilter& rest);
    /// The last button goes while it has the focus.
    void focusNeeded();

private:
    class FilterButton;

    template <class Part>
    FilterButton* add(std::optional<Part> HistoryFilter::*part);

    HistoryFilter filter_;
    FilterButton* hours_;
    FilterButton* place_;
    FilterButton* outcome_;
};

} // namespace velmora
