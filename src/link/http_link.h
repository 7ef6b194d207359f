#pragma once

#include "link/http_client.h"
#include "link/link.h"

#include <QUrl>

#include <chrono>
#include <optional>

namespace velmora {

/// Talks to a velmora server over plain HTTP on the home network. Pending requests are aborted at destruction
/// and their callbacks not called.
class HttpLink final : public Link {
public:
    /// Limits of the exchanges (Request).
    struct Limits {
        std::chrono::milliseconds state{2000};
        std::chrono::milliseconds command{3000};
        std::size_t replyBytes = 8 << 20;
    };

    HttpLink() : HttpLink(Limits{}) {}
    explicit HttpLink(const Limits& limits);

    /// "http://HOST:PORT/api/app/v1/" with the host exactly as in the settings; nullopt if that is not a
    /// valid address.
    static std::optional<QUrl> base(const Settings& settings);

    void fetchState(const Settings& settings, std::function<void(FetchResult)> done) override;
    void send(Command command, const std::optional<std::string>& mission, const Settings& settings,
              CommandDone done) override;
    void disconnect() override { client_.disconnect(); }

private:
    /// The base of a server's addresses, which is the same for many requests.
    struct Server {
        std::string host;
        std::int64_t port;
        std::optional<QByteArray> base; ///< encoded; nullopt if the address is not valid
    };

    const std::optional<QByteArray>& baseOf(const Settings& settings);

    HttpClient client_;
    Limits limits_;
    std::optional<Server> server_; ///< of the last request
};

} // namespace velmora
