#include "link/failure_text.h"

#include "language/language.h"

namespace velmora {

QString failureText(Failure failure, const QString& detail) {
    switch (failure) {
    case Failure::invalidAddress:
        return Words::tr("The host or port in Settings is not a valid address");
    case Failure::hostNotFound:
        return Words::tr("The host was not found");
    case Failure::refused:
        return Words::tr("The connection was refused");
    case Failure::unreachable:
        return Words::tr("The network is unreachable");
    case Failure::timedOut:
        return Words::tr("The connection timed out");
    case Failure::badResponse:
        return Words::tr("The server sent a bad response");
    case Failure::unreadable:
        return Words::tr("The server's state could not be read (%1)").arg(detail);
    case Failure::other:
        break;
    }
    return detail;
}

} // namespace velmora
