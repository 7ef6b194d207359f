#pragma once

#include "model/json.h"
#include "store/app_store.h"
#include "store/data_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

namespace velmora {

/// A server that never answers.
class MuteLink final : public Link {
public:
    void fetchState(const Settings&, std::function<void(FetchResult)>) override {}
    void send(Command, const std::optional<std::string>&, const Settings&, CommandDone) override {}
    void disconnect() override {}
};

/// A desktop without notifications.
class SilentNotifier final : public Notifier {
public:
    void post(const Notification&) override {}
    void withdraw(const QString&) override {}
    bool isShown(const QString&) const override { return false; }
};

/// A desktop that starts nothing at login.
class NoLoginItem final : public LoginItem {
public:
    bool isOn() const override { return false; }
    bool setOn(bool) override { return false; }
};

/// A store in a temporary data directory. Only `tickAfter` advances its clock, until `run` is called.
template <class RandomType, class LinkType = MuteLink, class NotifierType = SilentNotifier,
          class LoginItemType = NoLoginItem>
class StoreWorld {
public:
    explicit StoreWorld(RandomType draws = RandomType(), LinkType server = LinkType())
        : random(std::move(draws)), link(std::move(server)) {}

    /// Returns the store. The first call creates it, which reads its files.
    AppStore& store() {
        if (!store_)
            store_ = std::make_unique<AppStore>(AppStore::Environment{
                [this] { return time(); }, random, QDir(directory()), notifier, loginItem, link});
        return *store_;
    }
    void restart() { store_.reset(); }
    /// Waits until everything is saved. Returns whether it is on file.
    bool flush() const { return !store_ || store_->flush(std::chrono::minutes(1)); }

    QString directory() const { return home.path() + QStringLiteral("/data/Velmora"); }
    QString path(const QString& name) const { return directory() + '/' + name; }
    /// The content of a file after everything was saved.
    QByteArray content(const QString& name) const {
        flush();
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void put(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(directory());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s cannot be written.", qPrintable(file.fileName()));
    }
    void putHistory(const std::vector<MissionRecord>& history) const {
        put(QStringLiteral("history.json"), QByteArray::fromStdString(encode(history).value()));
    }

    void tickAfter(double seconds) {
        now += Seconds{seconds};
        store().tick();
    }
    /// Makes the store tick in real time from now on.
    void run() {
        runningSince_ = std::chrono::steady_clock::now();
        store().start();
    }
    /// Answers the alert that waits, if any.
    void respond(Command command) {
        if (const auto alert = store().waitingAlert())
            store().answer(command, *alert, CommandSource::card);
    }

    QTemporaryDir home;
    Date now = dateFromSeconds(1'700'000'042); ///< the current time; after `run`, the time when it was called
    RandomType random;
    NotifierType notifier;
    LoginItemType loginItem;
    LinkType link;

private:
    Date time() const {
        return runningSince_ ? now + Seconds(std::chrono::steady_clock::now() - *runningSince_) : now;
    }

    std::optional<std::chrono::steady_clock::time_point> runningSince_;
    std::unique_ptr<AppStore> store_;
};

} // namespace velmora
