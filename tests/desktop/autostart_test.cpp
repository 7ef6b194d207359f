#include "desktop/autostart.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace velmora {

namespace {

class AutostartTest : public testing::Test {
protected:
    void put(const QByteArray& entry) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(entry);
    }
    QByteArray content() {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir home;
    QString path = home.filePath("org.velmora.Velmora.desktop");
    Autostart autostart{home.path()};
};

TEST_F(AutostartTest, AnEntryIsOnUnlessItIsHiddenOrDisabled) {
    const std::pair<QByteArray, bool> entries[] = {
        {"", true},
        {"Exec=velmora\nHidden=false\nX-GNOME-Autostart-enabled=true\n", true},
        {"Exec=velmora\nHidden=true\n", false},
        {"Hidden = TRUE\r\nExec=velmora", false},
        {"Exec=velmora\nX-GNOME-Autostart-enabled=false", false},
    };
    EXPECT_FALSE(autostart.isOn());
    for (const auto& [entry, on] : entries) {
        put("[Desktop Entry]\n" + entry);
        EXPECT_EQ(autostart.isOn(), on) << entry.toStdString();
    }
}

TEST_F(AutostartTest, CanBeSwitchedOnAndOff) {
    put("[Desktop Entry]\nHidden=true\n");
    EXPECT_TRUE(autostart.setOn(true) && autostart.isOn()) << "replaces a disabled entry";
    EXPECT_TRUE(content().contains("\nExec=velmora --hidden\nTryExec=velmora\n"));
    for (int again = 0; again < 2; ++again) {
        EXPECT_TRUE(autostart.setOn(false));
        EXPECT_FALSE(autostart.isOn() || QFile::exists(path));
    }
    Autostart inNewDirectory(home.filePath("config/autostart"));
    EXPECT_TRUE(inNewDirectory.setOn(true) && inNewDirectory.isOn());
}

TEST_F(AutostartTest, StaysOffIfTheEntryCannotBeWritten) {
    put({});
    Autostart belowAFile(path + "/autostart");
    EXPECT_FALSE(belowAFile.setOn(true) || belowAFile.isOn());
}

} // namespace

} // namespace velmora
