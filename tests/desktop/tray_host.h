#pragma once

#include "desktop/bus_call.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QObject>
#include <QRgb>
#include <QtEndian>

#include <vector>

namespace velmora {

/// A fake tray: accepts the icons that register, and reads and clicks their menus.
class TrayHost : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHost)
    Q_PROPERTY(int ProtocolVersion READ version)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    struct Entry {
        int id = 0;
        QString label;
        bool enabled = true;
    };

    explicit TrayHost(bool hasHost = true) : bus_(QDBusConnection::sessionBus()), hasHost_(hasHost) {
        bus_.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                            QDBusConnection::ExportScriptableSlots |
                                QDBusConnection::ExportScriptableSignals |
                                QDBusConnection::ExportAllProperties);
        bus_.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }
    ~TrayHost() override { leave(); }

    void leave() { bus_.unregisterService(QStringLiteral("org.kde.StatusNotifierWatcher")); }
    void registerHost() {
        hasHost_ = true;
        emit StatusNotifierHostRegistered();
    }
    bool wasAskedForHost() const { return wasAsked_; }
    bool isHost() const {
        wasAsked_ = true;
        return hasHost_;
    }
    int version() const { return 0; }
    QStringList items() const { return items_; }

    /// The visible lines of the first icon's menu; separators are left out.
    std::vector<Entry> menu() const {
        std::vector<Entry> entries;
        const QDBusMessage reply = call(QStringLiteral("GetLayout"), {0, -1, QStringList()});
        if (reply.arguments().size() < 2)
            return entries;
        const auto root = reply.arguments().at(1).value<QDBusArgument>();
        int id = 0;
        QVariantMap properties;
        root.beginStructure();
        root >> id >> properties;
        root.beginArray();
        while (!root.atEnd()) {
            QDBusVariant child;
            root >> child;
            read(child.variant().value<QDBusArgument>(), entries);
        }
        root.endArray();
        root.endStructure();
        return entries;
    }
    QStringList labels() const {
        QStringList texts;
        for (const Entry& entry : menu())
            texts.append(entry.label);
        return texts;
    }
    /// How many pixels of the first icon, in its largest size, have this colour.
    int iconPixels(QRgb color) const {
        QDBusMessage question = QDBusMessage::createMethodCall(
            items_.value(0), QStringLiteral("/StatusNotifierItem"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        question << QStringLiteral("org.kde.StatusNotifierItem") << QStringLiteral("IconPixmap");
        const auto pictures = replyTo(question, bus_)
                                  .arguments()
                                  .value(0)
                                  .value<QDBusVariant>()
                                  .variant()
                                  .value<QDBusArgument>();
        QByteArray largest; // ARGB, most significant byte first
        for (pictures.beginArray(); !pictures.atEnd();) {
            int width = 0, height = 0;
            QByteArray pixels;
            pictures.beginStructure();
            pictures >> width >> height >> pixels;
            pictures.endStructure();
            if (pixels.size() > largest.size())
                largest = pixels;
        }
        pictures.endArray();
        int found = 0;
        for (qsizetype at = 0; at + 3 < largest.size(); at += 4)
            found += qFromBigEndian<QRgb>(largest.constData() + at) == color;
        return found;
    }
    /// Announces that the menu is about to be shown.
    void open() const { call(QStringLiteral("AboutToShow"), {0}); }
    /// Clicks the line with this label.
    void press(const QString& label) const {
        for (const Entry& entry : menu())
            if (entry.label == label)
                call(QStringLiteral("Event"),
                     {entry.id, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(QString())), 0U});
    }

signals:
    Q_SCRIPTABLE void StatusNotifierHostRegistered();

public slots:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& service, const QDBusMessage& message) {
        items_.append(service.startsWith('/') ? message.service() : service);
    }
    Q_SCRIPTABLE void RegisterStatusNotifierHost(const QString&) {}

private:
    static void read(const QDBusArgument& item, std::vector<Entry>& entries) {
        int id = 0;
        QVariantMap properties;
        item.beginStructure();
        item >> id >> properties;
        item.beginArray();
        item.endArray();
        item.endStructure();
        const QString label = properties.value(QStringLiteral("label")).toString();
        if (properties.value(QStringLiteral("visible"), true).toBool() && !label.isEmpty())
            entries.push_back({id, label, properties.value(QStringLiteral("enabled"), true).toBool()});
    }
    QDBusMessage call(const QString& method, const QVariantList& arguments) const {
        QDBusMessage message = QDBusMessage::createMethodCall(
            items_.value(0), QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu"), method);
        message.setArguments(arguments);
        return replyTo(message, bus_);
    }

    QDBusConnection bus_;
    bool hasHost_;
    mutable bool wasAsked_ = false;
    QStringList items_;
};

} // namespace velmora
