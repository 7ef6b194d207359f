#pragma once

#include "model/live_state.h"

#include <QWidget>

#include <vector>

class QVBoxLayout;

namespace velmora {

class LogRow;

/// Notices in a column: time, dot, text.
class LogList : public QWidget {
    Q_OBJECT

public:
    explicit LogList(QWidget* parent);

    void setNotices(const std::vector<Notice>& notices);

signals:
    /// A click on a notice.
    void activated(const velmora::Notice& notice);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QVBoxLayout* column_;
    std::vector<LogRow*> rows_;
    std::vector<Notice> notices_;
};

} // namespace velmora
