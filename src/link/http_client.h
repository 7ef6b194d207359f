#pragma once

#include "link/exchange.h"
#include "link/socket_set.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace velmora {

/// Runs exchanges on the event loop of the current thread. It never blocks, and it keeps a connection to the
/// server for the next request.
class HttpClient : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(const End&)>;

    HttpClient();
    /// Aborts the exchanges that run; their callbacks are not called.
    ~HttpClient() override;

    /// Sends the request. Calls `done` exactly once, from the event loop, when its exchange has ended, unless
    /// the client is destroyed first.
    void start(Request request, Done done);

    /// Aborts the running exchanges that post nothing, without calling back, and closes kept connections as
    /// soon as no exchange runs, unless another one is started before.
    void disconnect();

private:
    struct Running {
        std::unique_ptr<Exchange> exchange;
        Done done;
    };
    struct Finished {
        End end;
        Done done;
    };
    struct Close {
        void operator()(CURLM* multi) const { curl().multiCleanup(multi); }
    };

    void open();
    std::unique_ptr<Exchange> exchangeFor(Request request);
    static int watchSocket(CURL*, curl_socket_t socket, int directions, void* client, void*);
    static int setTimer(CURLM*, long milliseconds, void* client);

    void run(std::unique_ptr<Exchange> exchange, Done done);
    void advance(curl_socket_t socket, int directions);
    void collect();
    void report();
    void closeIfIdle();

    SocketSet sockets_;
    QSocketNotifier notifier_{sockets_.descriptor(), QSocketNotifier::Read};
    QTimer timer_;
    std::unique_ptr<CURLM, Close> multi_; ///< null before the first request; uses sockets and timer
    std::map<CURL*, Running> running_;
    std::vector<Finished> finished_;  ///< not reported yet
    std::unique_ptr<Exchange> ended_; ///< the last one that can run again; null if there is none
    bool keepsConnections_ = true;
};

} // namespace velmora
