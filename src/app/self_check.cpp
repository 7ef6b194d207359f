#include "app/self_check.h"

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <QWidget>

namespace velmora::SelfCheck {

namespace {

constexpr const char* directoryVariable = "VL_SNAPSHOT_DIR";
constexpr QSize pictureSize(1360, 860);
constexpr int mainWindowWidth = 600; // at least; menus and cards are narrower

void resizeWindows() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            window->resize(pictureSize);
}

QWidget* mainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->width() >= mainWindowWidth)
            return window;
    return nullptr;
}

void shot(const QDir& directory, const QString& name) {
    if (QWidget* window = mainWindow())
        window->grab().save(directory.filePath(name + QStringLiteral(".png")), "PNG");
}

void finishWelcome(AppStore& store) {
    store.setShowWelcome(false);
    Settings settings = store.settings();
    settings.onboarded = true;
    store.setSettings(settings);
}

/// Demo mode only: the run must not launch a server's drone.
void approveInDemo(AppStore& store) {
    if (const auto alert = store.waitingAlert(); alert && !store.settings().linkMode)
        store.answer(Command::approve, *alert, CommandSource::selfCheck);
}

void sendInDemo(AppStore& store, Command command) {
    if (!store.settings().linkMode)
        store.send(command, CommandSource::selfCheck);
}

/// Schedules the actions of the run. Each delay is in seconds after the action before.
class Timetable {
public:
    Timetable(AppStore& store, const QDir& directory) : store_(store), directory_(directory) {}

    template <class Action>
    void at(double delay, Action action) {
        clock_ += delay;
        QTimer::singleShot(static_cast<int>(clock_ * 1000), Qt::PreciseTimer, &store_, std::move(action));
    }
    void shotAt(double delay, const char* name) {
        at(delay, [directory = directory_, name] { shot(directory, QString::fromLatin1(name)); });
    }
    void sectionAt(double delay, Section section) {
        at(delay, [&store = store_, section] { store.setSection(section); });
    }

private:
    AppStore& store_;
    QDir directory_;
    double clock_ = 0; ///< seconds after start-up
};

} // namespace

bool isRequested() {
    return qEnvironmentVariableIsSet(directoryVariable);
}

void runIfRequested(AppStore& store) {
    if (!isRequested())
        return;
    const QDir directory(qEnvironmentVariable(directoryVariable));
    directory.mkpath(QStringLiteral("."));

    Timetable run(store, directory);
    run.at(2, resizeWindows);
    run.shotAt(1, "00-welcome");
    run.at(0, [&store] { finishWelcome(store); });
    run.sectionAt(1, Section::overview);
    run.shotAt(1, "01-overview");
    run.sectionAt(0.5, Section::history);
    run.shotAt(1, "03-history");
    run.sectionAt(0.5, Section::cameras);
    run.shotAt(1, "04-cameras");
    run.sectionAt(0.5, Section::settings);
    run.shotAt(1, "05-settings");
    run.sectionAt(0.5, Section::overview);
    run.at(0, [&store] { store.simulate(Scenario::driveway); });
    run.shotAt(2, "06-approval");
    run.at(0.5, [&store] { approveInDemo(store); });
    run.shotAt(24, "02-live");
    run.sectionAt(0.5, Section::overview);
    run.shotAt(1, "07-overview-flying");
    run.sectionAt(0.5, Section::live);
    run.at(0, [&store] { sendInDemo(store, Command::returnHome); });
    run.shotAt(20, "08-live-returning");
    run.at(1, [] { QCoreApplication::quit(); });
}

} // namespace velmora::SelfCheck
