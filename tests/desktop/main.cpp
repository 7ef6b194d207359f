#include "desktop/private_bus.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const velmora::PrivateBus bus; // before the application, because Qt reads the address once
    if (!bus.isRunning())
        qFatal("dbus-daemon does not run.");
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
