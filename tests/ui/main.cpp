#include "support/application.h"

#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    const QTemporaryDir config; // keeps the settings of Qt's file dialog out of the user's
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config.path());
    const auto application = velmora::makeApplication(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
