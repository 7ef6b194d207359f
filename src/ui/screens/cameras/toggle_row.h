#pragma once

#include <QWidget>

namespace velmora {

class Switch;

/// A switch with a title and a detail text. Clicking the text also turns the switch.
class ToggleRow : public QWidget {
    Q_OBJECT

public:
    /// `where` is added to the accessible description, to distinguish switches with the same title.
    ToggleRow(const QString& title, const QString& detail, const QString& where, QWidget* parent);

    /// Does not emit `turned`.
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
