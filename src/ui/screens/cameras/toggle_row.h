#pragma once

#include <QWidget>

namespace velmora {

class Switch;
class Text;

/// A switch with a title and a detail text. Clicking the text also turns the switch.
class ToggleRow : public QWidget {
    Q_OBJECT

public:
    /// `where` is added to the accessible description, to distinguish switches with the same title.
    ToggleRow(const QString& title, const QString& detail, const QString& where, QWidget* parent);

    /// Does not emit `turned`.
    void setChecked(bool on);
    /// The switch has no effect while the camera is offline; the detail says so.
    void setOffline(bool offline);

signals:
    void turned(bool on);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void showDetail();

    QString detail_, where_;
    Switch* switch_;
    Text* detailText_;
    bool offline_ = false;
};

} // namespace velmora
