#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <vector>

namespace velmora {

class ActivityRow;
class Text;

/// "Recent activity": the newest records, one line each. Clicking one opens it in the history.
class ActivityList : public QWidget {
    Q_OBJECT

public:
    ActivityList(AppStore& store, QWidget* parent);

    void refresh();
    /// Sets how many rows there is room for. The list shows at least two, and at most five or, in a wide
    /// window, ten.
    void setRows(int rows);
    /// Height above the first row, in pixels.
    static int headingHeight();

private:
    AppStore& store_;
    Text* nothing_;
    std::vector<ActivityRow*> rows_;
    std::size_t shown_;
};

} // namespace velmora
