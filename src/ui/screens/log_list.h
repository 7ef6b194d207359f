#pragma once

#include "model/live_state.h"

#include <QColor>
#include <QWidget>

#include <optional>
#include <vector>

class QVBoxLayout;

namespace velmora {

class LogRow;

/// Colour of the dot of a notice.
QColor noticeColor(Notice::Level level);

/// A column of notices (time, dot, text), optionally clickable.
class LogList : public QWidget {
    Q_OBJECT

public:
    enum class Interaction { readOnly, clickable };

    LogList(Interaction interaction, QWidget* parent);

    void setNotices(const std::vector<Notice>& notices);
    /// Highlights the notice at this index; nullopt for none.
    void setCurrent(std::optional<std::size_t> index);

signals:
    /// The owner clicked a notice.
    void activated(const velmora::Notice& notice);

private:
    void addRow();

    Interaction interaction_;
    QVBoxLayout* column_;
    std::vector<LogRow*> rows_;
    std::vector<Notice> notices_;
    std::optional<std::size_t> current_;
};

} // namespace velmora
