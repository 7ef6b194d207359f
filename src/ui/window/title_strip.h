#pragma once

#include "ui/look/icons.h"

#include <QAbstractButton>

class QMenuBar;

namespace velmora {

/// Minimise, maximise or close.
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

/// The slim strip in place of a native title bar: the menus over the sidebar's surface, an area that drags
/// the window, and the window's buttons.
class TitleStrip : public QWidget {
    Q_OBJECT

public:
    TitleStrip(QMenuBar* menus, QWidget* parent);

    /// Whether the strip's left end continues the sidebar below it.
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
