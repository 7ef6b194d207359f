#include "desktop/program_fixture.h"
#include "standin-server/scripted_server.h"

#include <QImageReader>
#include <QRegularExpression>

#include <csignal>

namespace velmora {

using namespace standin;

namespace {

/// Runs the program under strace and records its file and network calls.
class ConfinementTest : public ProgramTest {
protected:
    /// `pictures` is the directory of the self-check run; empty for an ordinary run.
    std::unique_ptr<QProcess> startTraced(const QString& pictures = {}) {
        EXPECT_TRUE(QDir().mkpath(log_.path()) && QDir().mkpath(home("data")));
        Variables variables{
            {"DISPLAY", display.name()}, {"QT_QPA_PLATFORM", "xcb"}, {"XDG_RUNTIME_DIR", home({})}};
        if (!pictures.isEmpty())
            variables.push_back({"VL_SNAPSHOT_DIR", pictures});
        return run("strace",
                   {"-ff", "-qq", "-s", "4096", "-e", "trace=%file,%network", "-o", log_.filePath("calls"),
                    VELMORA_PROGRAM},
                   variables);
    }
    /// Expects that the program wrote only below the allowed paths and connected only to this port on
    /// loopback.
    void expectConfined(const QStringList& allowed, quint16 port) const {
        int calls = 0;
        for (const QString& name : log_.entryList(QDir::Files)) {
            QFile file(log_.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
                ++calls;
                EXPECT_FALSE(connectsElsewhere(line, port)) << line.toStdString();
                for (const QString& path : writtenBy(line))
                    EXPECT_TRUE(std::ranges::any_of(allowed, [&](const QString& prefix) {
                        return path.startsWith(prefix);
                    })) << line.toStdString();
            }
        }
        EXPECT_GT(calls, 1000);
        EXPECT_FALSE(QFile::exists(home("config"))) << "no autostart entry without a request";
    }

    VirtualDisplay display;

private:
    static bool connectsElsewhere(const QString& line, quint16 port) {
        static const QRegularExpression call(R"(^(connect|bind|sendto|sendmsg)\(.*sa_family=AF_INET)");
        return call.match(line).hasMatch() &&
               !line.contains(QString("sin_port=htons(%1), sin_addr=inet_addr(\"127.0.0.1\")").arg(port));
    }
    /// The paths that a traced call created or changed.
    static QStringList writtenBy(const QString& line) {
        static const QRegularExpression opened(R"(^(open|openat|creat)\(.*O_(WRONLY|RDWR|CREAT))"),
            changed(R"(^(mkdir|rename|unlink|link|symlink|truncate|f?chmod|f?chown|utimensat|mknod)\w*\()"),
            path(R"re("([^"]*)")re");
        QStringList paths;
        if (!line.contains(" = -1 E") && (opened.match(line).hasMatch() || changed.match(line).hasMatch()))
            for (auto found = path.globalMatch(line); found.hasNext();)
                paths.append(found.next().captured(1));
        return paths;
    }

    QDir log_{home("log")};
};

TEST_F(ConfinementTest, ALinkedRunWritesOnlyItsDataAndCallsOnlyItsServer) {
    int polls = 0;
    ScriptedServer server([&](const QByteArray&) {
        ++polls;
        const auto state = encode(LiveState::initial(), KeyStyle::snakeCase);
        return ScriptedServer::Reply{ScriptedServer::wellFormed(200, QByteArray::fromStdString(*state), "1")};
    });
    ASSERT_TRUE(server.listener().listen(QHostAddress::LocalHost));
    linkTo(server.listener().serverPort());
    const auto program = startTraced();
    ASSERT_TRUE(waitUntil([&] { return polls >= 3; }));
    ::kill(static_cast<pid_t>(QDBusConnection::sessionBus().interface()->servicePid("org.velmora.Velmora")),
           SIGTERM);
    EXPECT_EQ(exitCodeOf(*program), 0);
    expectConfined({home("data") + "/Velmora/", "/dev/null"}, server.listener().serverPort());
    EXPECT_EQ(journal(), QStringList()) << "no command was given";
}

TEST_F(ConfinementTest, TheSelfCheckRunWritesItsPicturesAndCallsNoServer) {
    const QString pictures = home("pictures");
    const auto program = startTraced(pictures);
    EXPECT_EQ(exitCodeOf(*program, 110'000), 0);
    for (const char* name : {"00-welcome", "01-overview", "02-live", "03-history", "04-cameras",
                             "05-settings", "06-approval", "07-overview-flying", "08-live-returning"})
        EXPECT_EQ(QImageReader(pictures + '/' + name + ".png").size(), QSize(1360, 860)) << name;
    expectConfined({home("data") + "/Velmora", pictures, "/dev/null"}, 0);
    EXPECT_EQ(journal(), QStringList({"approve self-check sent", "return self-check sent"}));
}

} // namespace

} // namespace velmora
