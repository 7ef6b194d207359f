#include "link/exchange.h"

#include "model/boot_clock.h"

#include <cerrno>
#include <fcntl.h>
#include <utility>

namespace velmora {

namespace {

constexpr int okStatus = 200;
constexpr std::size_t longestHead = 64 << 10; // bytes
constexpr long receiveBuffer = 16 << 10;      // bytes; also what is read from the network at once

/// Prepares the library once. It needs no TLS.
CURL* newHandle() {
    static const CURLcode prepared = curl().globalInit(CURL_GLOBAL_NOTHING);
    CURL* handle = prepared == CURLE_OK ? curl().easyInit() : nullptr;
    if (handle == nullptr)
        qFatal("The HTTP library cannot be prepared.");
    return handle;
}

Failure connectionFailure(int systemError) {
    switch (systemError) {
    case ECONNREFUSED:
        return Failure::refused;
    case ETIMEDOUT:
        return Failure::timedOut;
    case ENETUNREACH:
    case EHOSTUNREACH:
    case ENETDOWN:
    case EHOSTDOWN:
    case EADDRNOTAVAIL:
    case EACCES: // of a broadcast address or a firewall
    case EPERM:
        return Failure::unreachable;
    default:
        return Failure::other;
    }
}

/// A program that is started meanwhile would keep the socket open, and in the SocketSet.
int keepFromChildren(void*, curl_socket_t socket, curlsocktype) {
    return ::fcntl(socket, F_SETFD, FD_CLOEXEC) == 0 ? CURL_SOCKOPT_OK : CURL_SOCKOPT_ERROR;
}

/// libcurl would expand such a transfer, even one without any output, before a limit counts.
bool isCompressed(const QByteArray& header) {
    const QByteArray name = "transfer-encoding:", line = header.toLower();
    return line.startsWith(name) && line.mid(name.size()).trimmed() != "chunked";
}

} // namespace

Exchange::Exchange(Request request)
    : request_(std::move(request)), deadline_(sinceBoot() + request_.timeLimit), handle_(newHandle()) {
    set(CURLOPT_URL, request_.url.constData());
    set(CURLOPT_PROTOCOLS_STR, "http");
    set(CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
    set(CURLOPT_PROXY, ""); // the server is on the home network
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_SOCKOPTFUNCTION, &keepFromChildren);
    const auto add = [this](const char* header) {
        headers_.reset(curl().slistAppend(headers_.release(), header));
    };
    add("Accept-Encoding: identity"); // a compressed reply could expand without limit
    if (request_.json)
        add("Content-Type: application/json");
    set(CURLOPT_HTTPHEADER, headers_.get());
    setLimits();
    if (request_.json)
        setPost();
}

bool Exchange::canRepeat() const {
    long newConnections = 0;
    curl().easyGetinfo(handle_.get(), CURLINFO_NUM_CONNECTS, &newConnections);
    return !isPost() && succeeded_ && newConnections == 0;
}

void Exchange::repeat() {
    deadline_ = sinceBoot() + request_.timeLimit;
    headBytes_ = 0;
    headEnded_ = false;
    body_.clear();
}

void Exchange::set(CURLoption option, auto value) {
    if (curl().easySetopt(handle_.get(), option, value) != CURLE_OK)
        qFatal("The HTTP library refuses option %d.", static_cast<int>(option));
}

/// QUICK_EXIT: a thread that looks up a name is not waited for, because it may take half a minute.
void Exchange::setLimits() {
    set(CURLOPT_TIMEOUT_MS, static_cast<long>(request_.timeLimit.count()));
    set(CURLOPT_QUICK_EXIT, 1L);
    set(CURLOPT_BUFFERSIZE, receiveBuffer);
    set(CURLOPT_HEADERFUNCTION, &Exchange::readHeader);
    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_WRITEFUNCTION, &Exchange::readBody);
    set(CURLOPT_WRITEDATA, this);
}

/// On a connection of its own: the server may be closing a kept one, and libcurl repeats a request whose kept
/// connection breaks. A command is never sent twice.
void Exchange::setPost() {
    set(CURLOPT_POSTFIELDS, request_.json->constData());
    set(CURLOPT_POSTFIELDSIZE, static_cast<long>(request_.json->size()));
    set(CURLOPT_FRESH_CONNECT, 1L);
    set(CURLOPT_FORBID_REUSE, 1L);
}

/// A smaller result than the size makes libcurl end the exchange.
std::size_t Exchange::readHeader(const char* line, std::size_t size, std::size_t count, void* exchange) {
    auto& self = *static_cast<Exchange*>(exchange);
    const std::size_t length = size * count;
    const QByteArray text = QByteArray(line, static_cast<qsizetype>(length)).trimmed();
    self.headBytes_ += length;
    self.headEnded_ = text.isEmpty() || (self.headEnded_ && !text.startsWith("HTTP/"));
    return self.headBytes_ <= longestHead && !isCompressed(text) ? length : 0;
}

std::size_t Exchange::readBody(const char* bytes, std::size_t size, std::size_t count, void* exchange) {
    auto& self = *static_cast<Exchange*>(exchange);
    const std::size_t length = size * count;
    if (static_cast<std::size_t>(self.body_.size()) + length > self.request_.replyBytes)
        return 0;
    self.body_.append(bytes, static_cast<qsizetype>(length));
    return length;
}

End Exchange::end(CURLcode result) {
    long status = 0;
    curl().easyGetinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &status);
    End end;
    end.status = static_cast<int>(status);
    end.failure = failureOf(result, end.status);
    succeeded_ = !end.failure;
    if (end.failure == Failure::other)
        end.errorText = systemErrorText(result);
    end.body = std::move(body_);
    end.version = version();
    return end;
}

int Exchange::systemError() const {
    long number = 0;
    curl().easyGetinfo(handle_.get(), CURLINFO_OS_ERRNO, &number);
    return static_cast<int>(number);
}

QString Exchange::systemErrorText(CURLcode result) const {
    const int number = systemError();
    return number == 0 ? QString::fromLatin1(curl().easyStrerror(result)) : qt_error_string(number);
}

std::optional<Failure> Exchange::failureOf(CURLcode result, int status) const {
    if (sinceBoot() > deadline_)
        return Failure::timedOut;
    switch (result) {
    case CURLE_OK:
        return status == okStatus && headEnded_ ? std::nullopt : std::optional(Failure::badResponse);
    case CURLE_COULDNT_RESOLVE_HOST:
        return Failure::hostNotFound;
    case CURLE_COULDNT_CONNECT:
        return connectionFailure(systemError());
    case CURLE_OPERATION_TIMEDOUT:
        return Failure::timedOut;
    case CURLE_URL_MALFORMAT:
        return Failure::invalidAddress;
    default: // there was a reply, or the connection ended before one
        return Failure::badResponse;
    }
}

/// The header on one line, limited to 40 printable characters for the sidebar.
QString Exchange::version() const {
    constexpr qsizetype longest = 40; // characters
    curl_header* header = nullptr;
    if (curl().easyHeader(handle_.get(), "X-Velmora-Version", 0, CURLH_HEADER, -1, &header) != CURLHE_OK)
        return {};
    QString text = QString::fromUtf8(header->value).simplified();
    text.removeIf([](QChar letter) { return !letter.isPrint(); });
    return text.left(longest);
}

} // namespace velmora
