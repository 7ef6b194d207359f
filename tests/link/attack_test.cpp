#include "link_fixture.h"
#include "raw_server.h"

#include <QElapsedTimer>
#include <QTimer>

#include <atomic>
#include <dlfcn.h>
#include <fstream>
#include <netdb.h>

namespace {

std::atomic<bool> nameServerIsSilent = false; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

} // namespace

/// Replaces the system's look-up, for libraries as well.
extern "C" int getaddrinfo(const char* name, const char* service, const addrinfo* hints, addrinfo** found) {
    for (int i = 0; nameServerIsSilent && i < 500; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    static const auto original = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return original(name, service, hints, found);
}

namespace velmora {

namespace {

/// Resident memory in megabytes.
double residentMegabytes() {
    std::size_t total = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Fetches while a timer ticks as the store's does.
class AttackTest : public LinkTest {
protected:
    AttackTest() {
        limitTime();
        sinceTick_.start();
        QObject::connect(&ticks_, &QTimer::timeout, &ticks_, [this] {
            longestGap_ = std::max(longestGap_, sinceTick_.restart());
            mostMemory_ = std::max(mostMemory_, residentMegabytes());
        });
        ticks_.setTimerType(Qt::PreciseTimer);
        ticks_.start(50ms);
    }

    void limitTime() { link = std::make_unique<HttpLink>(HttpLink::Limits{500ms, 500ms, 8 << 20}); }

    /// The error of a fetch, after it was checked that the program stayed responsive and small. The limits
    /// are wide, for slow machines.
    std::string failureUnderAttack(int port) {
        settings.port = port;
        longestGap_ = 0;
        mostMemory_ = residentMegabytes();
        const double memoryBefore = mostMemory_;
        sinceTick_.restart();
        QElapsedTimer exchange;
        exchange.start();
        const std::string text = failure();
        EXPECT_LT(exchange.elapsed(), 3000);
        EXPECT_LT(longestGap_, 1000);
        EXPECT_LT(mostMemory_ - memoryBefore, 30);
        std::printf("  %4lld ms, longest gap %3lld ms, %+.1f MB: %s\n",
                    static_cast<long long>(exchange.elapsed()), static_cast<long long>(longestGap_),
                    mostMemory_ - memoryBefore, text.c_str());
        return text;
    }
    std::string failureUnderAttack(RawServer::Script script) {
        const RawServer attacker(std::move(script));
        const std::string text = failureUnderAttack(attacker.port());
        link.reset(); // closes the connection, so that the script ends
        limitTime();
        return text;
    }
    /// The error after `head` and then `part` without end.
    std::string failureOfEndless(const QByteArray& head, const QByteArray& part) {
        return failureUnderAttack([&](const RawServer::Connection& client) {
            if (client.write(head))
                while (client.write(part))
                    ;
        });
    }

private:
    QTimer ticks_;
    QElapsedTimer sinceTick_;
    qint64 longestGap_ = 0; ///< milliseconds
    double mostMemory_ = 0; ///< megabytes
};

const QByteArray okHead = "HTTP/1.1 200 OK\r\n";
const QByteArray chunkedHead = okHead + "Transfer-Encoding: chunked\r\n\r\n";

TEST_F(AttackTest, NoPartOfAReplyIsEndless) {
    const QByteArray letters(10'000, 'a');
    EXPECT_EQ(failureOfEndless("HTTP/1.1 200 ", letters), badResponse) << "status line";
    EXPECT_EQ(failureOfEndless(okHead + "X-Endless: ", letters), badResponse) << "header";
    EXPECT_EQ(failureOfEndless(okHead, "X-Many: 1\r\n"), badResponse) << "headers";
    EXPECT_EQ(failureOfEndless({}, "HTTP/1.1 100 Continue\r\n\r\n"), badResponse)
        << "replies before the reply";
    EXPECT_EQ(failureOfEndless(chunkedHead + "5;a=", letters), timedOut) << "chunk extension";
    EXPECT_EQ(failureOfEndless(chunkedHead + "0\r\n", "X-Trailer: 1\r\n"), badResponse) << "trailers";
    EXPECT_EQ(failureOfEndless(okHead + "\r\n", letters), badResponse) << "body";
    reply = ok(document());
    EXPECT_EQ(failureUnderAttack(server.listener().serverPort()), "")
        << "another server can be reached at once";
}

TEST_F(AttackTest, ASlowOrSilentServerTimesOut) {
    const QByteArray head = ok(document()).bytes.left(200);
    EXPECT_EQ(failureUnderAttack([&](const RawServer::Connection& client) {
                  for (bool open = client.write(head); open; open = client.write(" "))
                      std::this_thread::sleep_for(10ms);
              }),
              timedOut)
        << "a hundred bytes a second";

    // A listener with a full queue swallows further connections.
    const int swallowing = RawServer::listeningSocket(0), filling = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = RawServer::loopback(RawServer::portOf(swallowing));
    ASSERT_EQ(connect(filling, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(failureUnderAttack(RawServer::portOf(swallowing)), timedOut) << "packets without an answer";
    close(filling);
    close(swallowing);
}

TEST_F(AttackTest, ANameServerThatNeverAnswersHoldsNothingUp) {
    reply = ok(document());
    nameServerIsSilent = true;
    settings.host = "velmora.invalid";
    EXPECT_EQ(failureUnderAttack(int(settings.port)), timedOut);
    settings.host = "127.0.0.1";
    EXPECT_EQ(failureUnderAttack(int(settings.port)), "") << "while the look-up goes on";
    settings.host = "velmora.invalid";
    startFetch();
    waitUntil([end = QDeadlineTimer(100)] { return end.hasExpired(); });
    QElapsedTimer time;
    time.start();
    link.reset();
    EXPECT_LT(time.elapsed(), 500) << "the look-up is not waited for";
    nameServerIsSilent = false;
    std::this_thread::sleep_for(200ms); // the threads of the look-ups end
}

TEST_F(AttackTest, CompressedRepliesAreNotExpanded) {
    const QByteArray bomb = qCompress(QByteArray(200 << 20, ' '), 9).mid(4); // without Qt's length
    const auto failureOfBomb = [&](const QByteArray& header) {
        const QByteArray head = okHead + header + ": deflate\r\n";
        return failureUnderAttack([&](const RawServer::Connection& client) {
            client.write(head + "Content-Length: " + QByteArray::number(bomb.size()) + "\r\n\r\n" + bomb);
        });
    };
    EXPECT_THAT(failureOfBomb("Content-Encoding"),
                testing::StartsWith("The server's state could not be read"));
    EXPECT_EQ(failureOfBomb("Transfer-Encoding"), badResponse);
    EXPECT_EQ(failureOfBomb("Transfer-Encoding: deflate, deflate\r\nX"), badResponse) << "two layers";
}

TEST_F(AttackTest, WrongLengthsAndOtherProtocolsAreBadResponses) {
    const QByteArray body = document(), tooShort = QByteArray::number(body.size() / 2),
                     tooLong = QByteArray::number(body.size() + 1);
    const auto failureOfLength = [&](const QByteArray& length) {
        return failureOf({okHead + "Content-Length: " + length + "\r\n\r\n" + body});
    };
    EXPECT_THAT(failureOfLength(tooShort), testing::StartsWith("The server's state could not be read"));
    for (const QByteArray& length :
         {tooLong, QByteArray("-1"), QByteArray("many"), tooShort + "\r\nContent-Length: " + tooLong})
        EXPECT_EQ(failureOfLength(length), badResponse) << length.toStdString();
    const QByteArray chunk = QByteArray::number(body.size(), 16) + "\r\n" + body + "\r\n0\r\n";
    EXPECT_EQ(failureOf({chunkedHead + chunk + "X-Trailer: 1\r\n\r\n"}), "") << "chunks are allowed";
    for (const char* size : {"G\r\n", "FFFFFFFFFFFFFFFFF\r\n", "-1\r\n", "7FFFFFFFFFFFFFFF\r\n"})
        EXPECT_EQ(failureOf({chunkedHead + size + body}), badResponse) << size;
    EXPECT_EQ(failureOf({QByteArray("\x15\x03\x01\x00\x02\x02\x46", 7)}), badResponse) << "TLS";
}

/// As a server does that closes a connection while the next poll is on its way.
TEST_F(AttackTest, AKeptConnectionThatEndsInsteadOfAReplyCostsNoPoll) {
    const QByteArray body = document();
    const QByteArray complete =
        okHead + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    const RawServer closing([&](const RawServer::Connection& client) {
        client.write(complete);
        client.awaitRequest();
    });
    settings.port = closing.port();
    for (int poll = 0; poll < 30; ++poll)
        ASSERT_EQ(failure(), "") << poll;
    link.reset();
}

TEST_F(AttackTest, ACloseAtAnyByteIsABadResponse) {
    const QByteArray complete = ok(document()).bytes;
    for (qsizetype length = 0; length < complete.size(); ++length)
        ASSERT_EQ(failureOf({complete.left(length)}), badResponse) << length;
}

} // namespace

} // namespace velmora
