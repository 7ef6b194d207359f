#pragma once

#include "link/curl_library.h"
#include "link/failure_text.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

namespace velmora {

/// A request, and the limits of its exchange.
struct Request {
    QByteArray url;                      ///< plain HTTP, percent-encoded
    std::optional<QByteArray> json;      ///< posted if set
    std::chrono::milliseconds timeLimit; ///< from the start to the last byte, the name look-up included
    std::size_t replyBytes;              ///< limit of the reply's body

    bool operator==(const Request&) const = default;
};

/// How an exchange ended.
struct End {
    std::optional<Failure> failure; ///< nullopt for a complete reply with status 200
    QString errorText;              ///< the system's text for a failure that has none of its own
    int status = 0;                 ///< HTTP status; 0 if no reply came
    QByteArray body;
    QString version; ///< header X-Velmora-Version: one line of at most 40 printable characters
};

/// One HTTP request and its reply, or the same request again after its end. No cookies, cache, proxy,
/// redirects or decompression. Head and body of a reply have a limit, and each run has a time limit.
class Exchange {
public:
    explicit Exchange(Request request);
    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

    CURL* handle() const { return handle_.get(); }
    bool isPost() const { return request_.json.has_value(); }
    const Request& request() const { return request_; }
    /// Whether the same request may run again: the reply was complete and came over a kept connection.
    /// libcurl counts the connections that broke over all runs of a handle, and gives up after five.
    bool canRepeat() const;
    /// Prepares the same request again, which is cheaper than another exchange. Call after end().
    void repeat();
    /// The end after libcurl has reported `result`. It is late, a time-out, if the exchange was not processed
    /// within its time limit, even if a pause of the program is the cause. Call once for each run.
    End end(CURLcode result);

private:
    struct Release {
        void operator()(CURL* handle) const { curl().easyCleanup(handle); }
        void operator()(curl_slist* headers) const { curl().slistFreeAll(headers); }
    };

    static std::size_t readHeader(const char* line, std::size_t size, std::size_t count, void* exchange);
    static std::size_t readBody(const char* bytes, std::size_t size, std::size_t count, void* exchange);

    void set(CURLoption option, auto value);
    void setLimits();
    void setPost();
    int systemError() const;
    QString systemErrorText(CURLcode result) const;
    std::optional<Failure> failureOf(CURLcode result, int status) const;
    QString version() const;

    Request request_;
    std::chrono::milliseconds deadline_; ///< on the boot clock
    std::unique_ptr<curl_slist, Release> headers_;
    std::unique_ptr<CURL, Release> handle_;
    std::size_t headBytes_ = 0; ///< of status lines, headers and trailers
    bool headEnded_ = false;    ///< the empty line after the last headers was read
    QByteArray body_;
    bool succeeded_ = false; ///< in the last run
};

} // namespace velmora
