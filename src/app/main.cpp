#include "app/app.h"
#include "app/self_check.h"
#include "desktop/activation.h"
#include "desktop/quit_deadline.h"
#include "desktop/quit_signals.h"
#include "language/language.h"
#include "ui/look/art.h"
#include "ui/look/fonts.h"
#include "ui/look/style.h"
#include "ui/look/type.h"
#include "ui/look/words.h"

#include <QApplication>
#include <QSettings>

#include <cstdlib>
#include <iostream>
#include <malloc.h>
#include <memory>
#include <pwd.h>
#include <unistd.h>

using namespace velmora;

namespace {

/// Needs no display, so that --help and --version work anywhere.
std::variant<Options, Message> optionsFrom(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    return readOptions(QCoreApplication::arguments());
}

/// XDG Base Directory rules: relative paths must be ignored.
void ignoreRelativeXdgPaths() {
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        if (QDir::isRelativePath(qEnvironmentVariable(variable)))
            qunsetenv(variable);
}

/// The directory of a user without HOME is that of the password database.
void findHome() {
    if (!qEnvironmentVariableIsEmpty("HOME"))
        return;
    if (const passwd* user = getpwuid(getuid()))
        qputenv("HOME", user->pw_dir);
}

/// Buffers of documents and pictures go back to the system when they are freed. By default the heap keeps
/// them, because the C library raises its limit with the first of them.
void keepHeapSmall() {
    constexpr int largestOnHeap = 256 * 1024; // bytes
    mallopt(M_MMAP_THRESHOLD, largestOnHeap);
}

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

[[noreturn]] void failWithoutDisplay(const char* reason) {
    std::cerr << "Velmora needs a graphical session: " << reason << '\n';
    std::_Exit(1);
}

/// While the application is created, the only fatal error is a display that cannot be opened. Qt would abort.
void onMessageOfStart(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg)
        failWithoutDisplay("the display cannot be opened.");
    std::cerr << text.toStdString() << '\n';
}

std::unique_ptr<QApplication> openDisplay(int& argc, char* argv[]) {
    if (!hasDisplay())
        failWithoutDisplay("neither DISPLAY nor WAYLAND_DISPLAY is set.");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QtMessageHandler usual = qInstallMessageHandler(onMessageOfStart);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(usual);
    return application;
}

/// Keeps the state of Qt's file dialog in the data directory.
void moveQSettingsTo(const QDir& directory) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, directory.path());
}

void setUpApplication() {
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.velmora.Velmora"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new Style);
    QApplication::setPalette(Style::lightPalette());
    if (!SBFont::registerBundled())
        qWarning("The program's typeface cannot be loaded; texts show in another one.");
    QApplication::setFont(SBFont::font(SBFont::Face::regular, Type::body.size));
}

/// Begins to decode what the Overview shows. The very first start shows the welcome and does not use it; the
/// settings are not read yet.
void findPictures(const Options& options, const QDir& directory) {
    Art::setDirectory(QDir(directory.filePath(QStringLiteral("art"))));
    if (!options.hidden && options.section.value_or(Section::overview) == Section::overview)
        Art::findAhead({toQString(LiveState::initial().site.planImage), QStringLiteral("drone-render")});
}

App* runningApp = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

/// Qt calls exit() when the display goes away.
void saveAtExit() {
    if (runningApp)
        runningApp->saveFiles();
}

/// Files first: a disk may take its time, everything else may not.
int run(AppService& service, const Options& options, const QDir& directory) {
    App app(service, options, directory);
    runningApp = &app;
    std::atexit(saveAtExit);
    const int exitCode = QApplication::exec();
    runningApp = nullptr;
    QuitDeadline::pause();
    app.saveFiles();
    QuitDeadline::resume();
    app.withdrawNotifications();
    service.release();
    return exitCode;
}

} // namespace

int main(int argc, char* argv[]) {
    keepHeapSmall();
    const auto read = optionsFrom(argc, argv);
    if (const auto* message = std::get_if<Message>(&read)) {
        (message->exitCode == 0 ? std::cout : std::cerr) << message->text.toStdString();
        return message->exitCode;
    }
    const Options options = std::get<Options>(read);
    findHome();
    ignoreRelativeXdgPaths();
    const QDir directory = DataFiles::defaultDirectory();
    const QString activationToken = Activation::launcherToken();
    const auto application = openDisplay(argc, argv);
    const QuitSignals quitSignals; // installed before anything that a signal must clean up
    QObject::connect(&quitSignals, &QuitSignals::quitRequested, [] { QCoreApplication::exit(); });
    // A self-check run must not hand over to a running instance, so it gets no bus.
    AppService service(SelfCheck::isRequested() ? QDBusConnection(QString()) : QDBusConnection::sessionBus());
    switch (service.claim(directory.path(), options.hidden, options.section, activationToken)) {
    case AppService::Claim::handedOver:
        return 0;
    case AppService::Claim::refused:
        std::cerr << "Velmora already runs with this data and cannot be reached. Close it first.\n";
        return 1;
    case AppService::Claim::granted:
        break;
    }
    findPictures(options, directory);
    moveQSettingsTo(directory);
    const Language language;
    setUpApplication();
    return run(service, options, directory);
}
