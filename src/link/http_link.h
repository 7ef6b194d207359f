#pragma once

#include "link/link.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>

#include <chrono>
#include <optional>

namespace velmora {

/// Talks to a velmora server over plain HTTP on the home network. Stateless: no cookies, cache, proxy or
/// redirects. Pending requests are aborted at destruction and their callbacks not called.
class HttpLink final : public QObject, public Link {
    Q_OBJECT

public:
    /// Time from the start of an exchange to its last byte, and size of a reply's body.
    struct Limits {
        std::chrono::milliseconds state{2000};
        std::chrono::milliseconds command{3000};
        qint64 replyBytes = 8 << 20;
    };

    HttpLink() : HttpLink(Limits{}) {}
    explicit HttpLink(const Limits& limits);

    /// "http://HOST:PORT/api/app/v1/" with the host exactly as in the settings; nullopt if that is not a
    /// valid address.
    static std::optional<QUrl> base(const Settings& settings);

    void fetchState(const Settings& settings, std::function<void(FetchResult)> done) override;
    void send(Command command, const std::optional<std::string>& mission, const Settings& settings,
              CommandDone done) override;

private:
    QNetworkAccessManager manager_;
    Limits limits_;
};

} // namespace velmora
