#include "link/http_client.h"

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
    connect(&timer_, &QTimer::timeout, this, [this] { proceed(CURL_SOCKET_TIMEOUT, 0); });
}

HttpClient::~HttpClient() {
    for (auto& [handle, running] : running_)
        curl().multiRemoveHandle(multi_.get(), handle);
}

void HttpClient::start(Request request, Done done) {
    if (const QString& error = curl().error; !error.isEmpty()) {
        QMetaObject::invokeMethod(
            this, [done = std::move(done), end = unusable(error)] { done(end); }, Qt::QueuedConnection);
        return;
    }
    auto exchange = exchangeFor(std::move(request));
    CURL* handle = exchange->handle();
    if (!multi_)
        open();
    keepsConnections_ = true;
    running_.emplace(handle, Running{std::move(exchange), std::move(done)});
    curl().multiAddHandle(multi_.get(), handle);
    proceed(CURL_SOCKET_TIMEOUT, 0); // now, without another turn of the event loop
}

/// A poll repeats the one before.
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
    static_cast<HttpClient*>(client)->watch(socket, directions);
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

void HttpClient::watch(curl_socket_t socket, int directions) {
    const auto follow = [&](auto& notifier, QSocketNotifier::Type type, int event, bool wanted) {
        if (!notifier && wanted) {
            notifier.reset(new QSocketNotifier(socket, type, this));
            connect(notifier.get(), &QSocketNotifier::activated, this,
                    [this, socket, event] { proceed(socket, event); });
        }
        if (notifier)
            notifier->setEnabled(wanted);
    };
    Watch& watch = watches_[socket];
    follow(watch.read, QSocketNotifier::Read, CURL_CSELECT_IN, directions & CURL_POLL_IN);
    follow(watch.write, QSocketNotifier::Write, CURL_CSELECT_OUT, directions & CURL_POLL_OUT);
}

void HttpClient::proceed(curl_socket_t socket, int directions) {
    int stillRunning = 0;
    curl().multiSocketAction(multi_.get(), socket, directions, &stillRunning);
    collect();
    closeIfIdle();
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

/// Queues the callbacks, so that they may destroy any object, this one included.
void HttpClient::collect() {
    int left = 0;
    while (const CURLMsg* message = curl().multiInfoRead(multi_.get(), &left)) {
        if (message->msg != CURLMSG_DONE)
            continue;
        const CURLcode result = message->data.result;
        auto ended = running_.extract(message->easy_handle);
        const End end = ended.mapped().exchange->end(result);
        curl().multiRemoveHandle(multi_.get(), ended.key());
        if (!ended.mapped().exchange->isPost())
            ended_ = std::move(ended.mapped().exchange);
        QMetaObject::invokeMethod(
            this, [done = std::move(ended.mapped().done), end] { done(end); }, Qt::QueuedConnection);
    }
}

} // namespace velmora
