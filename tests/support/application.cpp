#include "support/application.h"

#include "ui/look/fonts.h"
#include "ui/look/style.h"

namespace velmora {

std::unique_ptr<QApplication> makeApplication(int& argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    auto application = std::make_unique<QApplication>(argc, argv);
    QApplication::setStyle(new Style);
    QApplication::setPalette(Style::lightPalette());
    SBFont::registerBundled();
    return application;
}

} // namespace velmora
