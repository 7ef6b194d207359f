#include "link/exchange.h"

#include "model/boot_clock.h"

#include <utility>

namespace velmora {

namespace {

/// The header on one line, limited to 40 printable characters for the sidebar.
QString versionText(const QByteArray& header) {
    constexpr qsizetype longest = 40; // characters
    QString text = QString::fromUtf8(header).simplified();
    text.removeIf([](QChar letter) { return !letter.isPrint(); });
    return text.left(longest);
}

} // namespace

Exchange::Exchange(QNetworkReply* reply, std::chrono::milliseconds timeLimit, qint64 byteLimit,
                   std::function<void(const End&)> ended, QObject* parent)
    : QObject(parent),
      reply_(reply),
      deadline_(sinceBoot() + timeLimit),
      byteLimit_(byteLimit),
      ended_(std::move(ended)) {
    reply_->setParent(this);
    reply_->setReadBufferSize(byteLimit_ + 1); // Qt stops reading from the network beyond it
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, [this] { end(End::Kind::timedOut); });
    connect(reply_, &QNetworkReply::readyRead, this, &Exchange::read);
    connect(reply_, &QNetworkReply::finished, this, &Exchange::finished);
    timer_.start(timeLimit);
}

void Exchange::read() {
    body_ += reply_->read(byteLimit_ + 1 - body_.size());
    if (body_.size() > byteLimit_)
        end(End::Kind::tooLarge);
}

void Exchange::finished() {
    if (!ended_)
        return;
    read();
    end(reply_->error() == QNetworkReply::NoError ? End::Kind::complete : End::Kind::failed);
}

/// Queues the callback, so that it may destroy any object, including this one.
void Exchange::end(End::Kind kind) {
    auto ended = std::exchange(ended_, nullptr);
    if (!ended)
        return;
    timer_.stop();
    if (sinceBoot() > deadline_)
        kind = End::Kind::timedOut;
    End result{kind, reply_->error(), reply_->errorString(), 0, std::move(body_), {}};
    result.status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    result.version = versionText(reply_->rawHeader("X-Velmora-Version"));
    reply_->abort();
    QMetaObject::invokeMethod(
        this,
        [this, ended = std::move(ended), result = std::move(result)] {
            deleteLater();
            ended(result);
        },
        Qt::QueuedConnection);
}

} // namespace velmora
