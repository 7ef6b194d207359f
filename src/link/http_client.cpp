#include "link/http_client.h"

#include <QPointer>

#include <utility>

namespace velmora {

namespace {

constexpr long keptConnections = 2; // the server of the settings, and the one before

End unusable(const QString& error) {
    End end;
    end.failure = Failure::other;
    end.errorText = error;
    return end;
}

} // namespace

HttpClient::HttpClient() {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, [this] {
        advance(CURL_SOCKET_TIMEOUT, 0);
        report();
    });
    connect(&notifier_, &QSocketNotifier::activated, this, [this] {
        for (const auto& [socket, directions] : sockets_.ready())
            advance(socket, directions);
        report();
    });
}

HttpClient::~HttpClient() {
    for (auto& [handle, running] : running_)
        curl().multiRemoveHandle(multi_.get(), handle);
}

/// An exchange that ends at once is reported later: whoever starts one may be in the middle of an answer.
void HttpClient::start(Request request, Done done) {
    if (const QString& error = curl().error; !error.isEmpty())
        finished_.push_back({unusable(error), std::move(done)});
    else
        run(exchangeFor(std::move(request)), std::move(done));
    if (!finished_.empty())
        QMetaObject::invokeMethod(this, &HttpClient::report, Qt::QueuedConnection);
}

/// Begins now, without another turn of the event loop.
void HttpClient::run(std::unique_ptr<Exchange> exchange, Done done) {
    CURL* handle = exchange->handle();
    if (!multi_)
        open();
    keepsConnections_ = true;
    running_.emplace(handle, Running{std::move(exchange), std::move(done)});
    curl().multiAddHandle(multi_.get(), handle);
    advance(CURL_SOCKET_TIMEOUT, 0);
}

/// A poll runs the exchange of the last poll again.
std::unique_ptr<Exchange> HttpClient::exchangeFor(Request request) {
    if (!ended_ || ended_->request() != request)
        return std::make_unique<Exchange>(std::move(request));
    ended_->repeat();
    return std::move(ended_);
}

/// Done with the first request, because demo mode needs no HTTP.
void HttpClient::open() {
    multi_.reset(curl().multiInit());
    curl().multiSetopt(multi_.get(), CURLMOPT_SOCKETFUNCTION, &HttpClient::watchSocket);
    curl().multiSetopt(multi_.get(), CURLMOPT_SOCKETDATA, this);
    curl().multiSetopt(multi_.get(), CURLMOPT_TIMERFUNCTION, &HttpClient::setTimer);
    curl().multiSetopt(multi_.get(), CURLMOPT_TIMERDATA, this);
    curl().multiSetopt(multi_.get(), CURLMOPT_MAXCONNECTS, keptConnections);
}

int HttpClient::watchSocket(CURL*, curl_socket_t socket, int directions, void* client, void*) {
    static_cast<HttpClient*>(client)->sockets_.watch(socket, directions);
    return 0;
}

/// -1 stops the timer.
int HttpClient::setTimer(CURLM*, long milliseconds, void* client) {
    QTimer& timer = static_cast<HttpClient*>(client)->timer_;
    if (milliseconds < 0)
        timer.stop();
    else
        timer.start(std::chrono::milliseconds(milliseconds));
    return 0;
}

void HttpClient::advance(curl_socket_t socket, int directions) {
    int stillRunning = 0;
    curl().multiSocketAction(multi_.get(), socket, directions, &stillRunning);
    collect();
}

void HttpClient::disconnect() {
    keepsConnections_ = false;
    ended_.reset();
    std::erase_if(running_, [this](const auto& item) {
        if (item.second.exchange->isPost())
            return false;
        curl().multiRemoveHandle(multi_.get(), item.first);
        return true;
    });
    closeIfIdle();
}

void HttpClient::closeIfIdle() {
    if (!keepsConnections_ && running_.empty())
        multi_.reset();
}

void HttpClient::collect() {
    int left = 0;
    while (const CURLMsg* message = curl().multiInfoRead(multi_.get(), &left)) {
        if (message->msg != CURLMSG_DONE)
            continue;
        const CURLcode result = message->data.result;
        auto ended = running_.extract(message->easy_handle);
        auto& [exchange, done] = ended.mapped();
        finished_.push_back({exchange->end(result), std::move(done)});
        curl().multiRemoveHandle(multi_.get(), ended.key());
        if (exchange->canRepeat())
            ended_ = std::move(exchange);
    }
}

/// A callback may start or abort exchanges and destroy any object, this one included.
void HttpClient::report() {
    closeIfIdle();
    const QPointer client(this);
    for (const auto& [end, done] : std::exchange(finished_, {}))
        if (client)
            done(end);
}

} // namespace velmora
