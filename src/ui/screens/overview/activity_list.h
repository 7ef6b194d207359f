#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <vector>

namespace velmora {

class ActivityRow;
class Text;

/// "Recent activity": the newest records, one line each; a click opens the record in the history.
class ActivityList : public QWidget {
    Q_OBJECT

public:
    ActivityList(AppStore& store, QWidget* parent);

    void refresh();
    /// Shows at most so many rows.
    void setRows(int rows);

private:
    AppStore& store_;
    Text* nothing_;
    std::vector<ActivityRow*> rows_;
    std::size_t shown_;
};

} // namespace velmora
