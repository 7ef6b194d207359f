#pragma once

#include "link/exchange.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>

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

    /// Aborts the exchanges that post nothing, without calling back, and closes kept connections as soon as
    /// no exchange runs, unless another one is started before.
    void disconnect();

private:
    struct Running {
        std::unique_ptr<Exchange> exchange;
        Done done;
    };
    /// Notifiers of one socket, enabled for the directions that libcurl waits for.
    struct Watch {
        std::unique_ptr<QSocketNotifier> read, write;
    };
    struct Close {
        void operator()(CURLM* multi) const { curl().multiCleanup(multi); }
    };

    void open();
    std::unique_ptr<Exchange> exchangeFor(Request request);
    static int watchSocket(CURL*, curl_socket_t socket, int directions, void* client, void*);
    static int setTimer(CURLM*, long milliseconds, void* client);

    void watch(curl_socket_t socket, int directions);
    void proceed(curl_socket_t socket, int directions);
    void collect();
    void closeIfIdle();

    std::map<curl_socket_t, Watch> watches_; ///< of every socket so far; their numbers recur
    QTimer timer_;
    std::unique_ptr<CURLM, Close>
        multi_; ///< null before the first request; uses the watches until it is closed
    std::map<CURL*, Running> running_;
    std::unique_ptr<Exchange> ended_; ///< the last one that posted nothing; null if there is none
    bool keepsConnections_ = true;
};

} // namespace velmora
