#include "link/failure_text.h"

#include <QCoreApplication>

namespace velmora {

namespace {

constexpr int okStatus = 200;

Failure failureOf(QNetworkReply::NetworkError error) {
    if (error >= QNetworkReply::ContentAccessDenied) // there was a reply
        return Failure::badResponse;
    switch (error) {
    case QNetworkReply::HostNotFoundError:
        return Failure::hostNotFound;
    case QNetworkReply::ConnectionRefusedError:
        return Failure::refused;
    case QNetworkReply::UnknownNetworkError: // a host or network without a route
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
        return Failure::unreachable;
    case QNetworkReply::TimeoutError:
        return Failure::timedOut;
    case QNetworkReply::RemoteHostClosedError:            // before the reply was complete
    case QNetworkReply::ProxyAuthenticationRequiredError: // status 407, because no proxy is used
        return Failure::badResponse;
    default:
        return Failure::other;
    }
}

QString tr(const char* text) {
    return QCoreApplication::translate("HttpLink", text);
}

} // namespace

std::optional<Failure> failureOf(const Exchange::End& end) {
    switch (end.kind) {
    case Exchange::End::Kind::timedOut:
        return Failure::timedOut;
    case Exchange::End::Kind::tooLarge:
        return Failure::badResponse;
    case Exchange::End::Kind::failed:
        return failureOf(end.error);
    case Exchange::End::Kind::complete:
        break;
    }
    return end.status == okStatus ? std::nullopt : std::optional(Failure::badResponse);
}

QString failureText(Failure failure, const QString& detail) {
    switch (failure) {
    case Failure::invalidAddress:
        return tr("The host or port in Settings is not a valid address");
    case Failure::hostNotFound:
        return tr("The host was not found");
    case Failure::refused:
        return tr("The connection was refused");
    case Failure::unreachable:
        return tr("The network is unreachable");
    case Failure::timedOut:
        return tr("The connection timed out");
    case Failure::badResponse:
        return tr("The server sent a bad response");
    case Failure::unreadable:
        return tr("The server's state could not be read (%1)").arg(detail);
    case Failure::other:
        break;
    }
    return detail;
}

} // namespace velmora
