#include "ui/window/command_menus.h"

#include "ui/look/words.h"

#include <QMenu>
#include <QShortcutEvent>

namespace velmora {

CommandMenus::CommandMenus(AppStore& store, QWidget* parent) : QMenuBar(parent), store_(store) {
    setNativeMenuBar(false);
    buildVelmora();
    buildDemo();
    buildDrone();
    connect(&store_, &AppStore::stateChanged, this, &CommandMenus::refresh);
    connect(&store_, &AppStore::settingsChanged, this, &CommandMenus::refresh);
    connect(&store_, &AppStore::freshnessChanged, this, &CommandMenus::refresh);
    connect(&store_, &AppStore::pendingCommandChanged, this, &CommandMenus::refresh);
    refresh();
}

void CommandMenus::buildVelmora() {
    QMenu* menu = addMenu(tr("Velmora"));
    about_ = menu->addAction(tr("About Velmora"));
    connect(about_, &QAction::triggered, this, &CommandMenus::aboutRequested);
    menu->addSeparator();
    QAction* quit = addCommand(menu, tr("Quit Velmora"), QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, this, &CommandMenus::quitRequested);
}

void CommandMenus::buildDemo() {
    QMenu* menu = addMenu(tr("Demo"));
    for (const auto& [scenario, id] : rawValuesOf<Scenario>) {
        QAction* visit = menu->addAction(scenarioTitle(scenario));
        connect(visit, &QAction::triggered, this, [this, staged = scenario] { store_.simulate(staged); });
        visits_.append(visit);
    }
    menu->addSeparator();
    welcome_ = menu->addAction(tr("Show welcome"));
    connect(welcome_, &QAction::triggered, this, [this] { store_.setShowWelcome(true); });
}

void CommandMenus::buildDrone() {
    QMenu* menu = addMenu(tr("Drone"));
    approve_ = addCommand(menu, tr("Launch (approve)"), QKeySequence(Qt::CTRL | Qt::Key_Return));
    ignore_ = addCommand(menu, tr("Ignore alert"), QKeySequence(Qt::CTRL | Qt::Key_Escape));
    connect(approve_, &QAction::triggered, this, [this] { emit answered(Command::approve, takeSource()); });
    connect(ignore_, &QAction::triggered, this, [this] { emit answered(Command::ignore, takeSource()); });
    menu->addSeparator();
    QAction* hold = addCommand(menu, tr("Hold position"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_H));
    QAction* home = addCommand(menu, tr("Return home"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
    for (QAction* command : {approve_, ignore_, hold, home})
        command->installEventFilter(this);
    connect(hold, &QAction::triggered, this, [this] { store_.send(Command::hold, takeSource()); });
    connect(home, &QAction::triggered, this, [this] { store_.send(Command::returnHome, takeSource()); });
}

QAction* CommandMenus::addCommand(QMenu* menu, const QString& text, const QKeySequence& shortcut) {
    QAction* action = menu->addAction(text);
    action->setShortcut(shortcut);
    action->setAutoRepeat(false);
    return action;
}

/// An action gets an event for its shortcut, but none for a click in its menu.
bool CommandMenus::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Shortcut && qobject_cast<QAction*>(watched))
        source_ = static_cast<QShortcutEvent*>(event)->isAmbiguous() ? CommandSource::menu
                                                                     : CommandSource::shortcut;
    return QMenuBar::eventFilter(watched, event);
}

void CommandMenus::setCovered(bool covered) {
    about_->setEnabled(!covered);
    welcome_->setEnabled(!covered);
}

void CommandMenus::refresh() {
    const bool canStage = !store_.settings().linkMode && store_.phase() == Phase::docked;
    for (QAction* visit : visits_)
        visit->setEnabled(canStage);
    const bool waiting = store_.waitingAlert().has_value();
    approve_->setEnabled(waiting);
    ignore_->setEnabled(waiting);
}

} // namespace velmora
