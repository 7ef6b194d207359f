#pragma once

#include <QWidget>

namespace velmora {

class Switch;

/// A switch with its title and a detail beside it. A click on the words turns it too.
class ToggleRow : public QWidget {
    Q_OBJECT

public:
    /// `where` tells switches of the same title apart for assistive technology.
    ToggleRow(const QString& title, const QString& detail, const QString& where, QWidget* parent);

    /// Emits nothing.
    void setChecked(bool on);

signals:
    void turned(bool on);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    Switch* switch_;
};

} // namespace velmora
