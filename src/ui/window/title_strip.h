#pragma once

#include "ui/look/icons.h"

#include <QAbstractButton>

class QMenuBar;

namespace velmora {

/// A button that minimises, maximises or closes the window.
class WindowButton : public QAbstractButton {
    Q_OBJECT

public:
    WindowButton(Icon icon, const QString& name, QWidget* parent);

    void setIcon(Icon icon, const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    Icon icon_;
};

/// Replaces the native title bar: the menus at the left, an area for dragging the window, and the window
/// buttons.
class TitleStrip : public QWidget {
    Q_OBJECT

public:
    TitleStrip(QMenuBar* menus, QWidget* parent);

    /// Sets whether the left end is drawn as a continuation of the sidebar.
    void setOverSidebar(bool over);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void toggleMaximised();
    void showWindowState();

    bool overSidebar_ = true;
    WindowButton* maximise_;
};

} // namespace velmora
