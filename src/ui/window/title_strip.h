#pragma once

#include "ui/look/icons.h"
#include "ui/look/transition.h"

#include <QAbstractButton>

class QMenuBar;

namespace velmora {

/// A button that minimises, maximises or closes the window.
class WindowButton : public QAbstractButton {
    Q_OBJECT

public:
    WindowButton(Icon icon, const QString& name, QWidget* parent);

    void setIcon(Icon icon, const QString& name);
    /// Whether the strip is dark.
    void setOnDark(bool dark);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    Icon icon_;
    bool dark_ = false;
};

/// Replaces the native title bar: the menus at the left, an area for dragging the window, and the window
/// buttons.
class TitleStrip : public QWidget {
    Q_OBJECT

public:
    TitleStrip(QMenuBar* menus, QWidget* parent);

    /// Sets whether the left end is drawn as a continuation of the sidebar.
    void setOverSidebar(bool over);
    /// Darkens the strip while the veil of a card covers the rest of the window.
    void setVeiled(bool veiled);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void toggleMaximised();
    void showWindowState();

    bool overSidebar_ = true;
    bool veiled_ = false;
    Transition veil_; ///< 0 light, 1 dark
    QMenuBar* menus_;
    WindowButton* maximise_;
};

} // namespace velmora
