#include "ui/look/fonts.h"
#include "ui/look/style.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir config; // for what Qt's file dialog remembers
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config.path());
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication app(argc, argv);
    QApplication::setStyle(new velmora::Style);
    QApplication::setPalette(velmora::Style::lightPalette());
    velmora::SBFont::registerBundled();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
