#include "link/failure_text.h"

#include <QCoreApplication>

namespace velmora {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("HttpLink", text);
}

} // namespace

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
