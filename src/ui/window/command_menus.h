#pragma once

#include "store/app_store.h"

#include <QMenuBar>

#include <utility>

namespace velmora {

/// The menus "Velmora", "Demo" and "Drone". Their actions are enabled according to the live state.
class CommandMenus : public QMenuBar {
    Q_OBJECT

public:
    explicit CommandMenus(AppStore& store, QWidget* parent);

    /// Disables the lines that would open something below a card.
    void setCovered(bool covered);

signals:
    void aboutRequested();
    void quitRequested();
    /// The owner chose "Launch (approve)" or "Ignore alert".
    void answered(velmora::Command answer, velmora::CommandSource source);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildVelmora();
    void buildDemo();
    void buildDrone();
    void refresh();
    QAction* addCommand(QMenu* menu, const QString& text, const QKeySequence& shortcut);
    CommandSource takeSource() { return std::exchange(source_, CommandSource::menu); }

    AppStore& store_;
    QList<QAction*> visits_;
    QAction* about_ = nullptr;
    QAction* welcome_ = nullptr;
    QAction* approve_ = nullptr;
    QAction* ignore_ = nullptr;
    CommandSource source_ = CommandSource::menu; ///< of the action that is being triggered
};

} // namespace velmora
