#pragma once

#include "link/link.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>

#include <chrono>
#include <optional>

namespace velmora {

/// Talks to a velmora server over plain HTTP on the home network. It keeps nothing between two exchanges: no
/// cookies, no cache, no proxy, no redirect. An exchange that is out when the object goes is dropped without
/// a word.
class HttpLink final : public QObject, public Link {
    Q_OBJECT

public:
    /// How long an exchange may take from its start to its last byte, and how much a reply may hold.
    struct Limits {
        std::chrono::milliseconds state{2000};
        std::chrono::milliseconds command{3000};
        qint64 replyBytes = 8 << 20;
    };

    HttpLink() : HttpLink(Limits{}) {}
    explicit HttpLink(const Limits& limits);

    /// "http://HOST:PORT/api/app/v1/" with the host as it stands in the settings; absent when that is no
    /// address.
    static std::optional<QUrl> base(const Settings& settings);

    void fetchState(const Settings& settings, std::function<void(FetchResult)> done) override;
    void send(Command command, const std::optional<std::string>& mission, const Settings& settings,
              CommandDone done) override;

private:
    QNetworkAccessManager manager_;
    Limits limits_;
};

} // namespace velmora
