#include "support/application.h"

#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    const QTemporaryDir config; // for what Qt's file dialog remembers
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config.path());
    const auto application = velmora::makeApplication(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
