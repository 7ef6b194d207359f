#include "app/self_check.h"
#include "link/http_link.h"
#include "sim/random.h"
#include "store/app_store.h"
#include "ui/look/art.h"
#include "ui/look/fonts.h"
#include "ui/look/style.h"
#include "ui/look/type.h"
#include "ui/window/main_window.h"

#include <QApplication>

using namespace velmora;

int main(int argc, char* argv[]) {
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.velmora.Velmora"));
    QApplication::setStyle(new Style);
    QApplication::setPalette(Style::lightPalette());
    if (!SBFont::registerBundled())
        qWarning("The program's typeface cannot be loaded; texts show in another one.");
    QApplication::setFont(SBFont::font(SBFont::Face::regular, Type::body.size));

    SystemRandom random;
    SilentNotifier notifier;
    HttpLink link;
    AppStore store({[] { return Date(std::chrono::system_clock::now()); }, random,
                    DataFiles::defaultDirectory(), notifier, link});
    Art::setDirectory(QDir(DataFiles::defaultDirectory().filePath(QStringLiteral("art"))));
    store.start();
    SelfCheck::runIfRequested(store);

    MainWindow window(store);
    window.show();
    window.activateWindow();
    return QApplication::exec();
}
