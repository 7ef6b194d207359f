#pragma once

#include <QString>

namespace velmora {

/// How the app stands to its server.
struct LinkStatus {
    enum class Case { connected, failed, demo, connecting };

    Case kind = Case::demo;
    QString payload; ///< the server's version when connected, the error's text when failed

    static LinkStatus connected(const QString& version) { return {Case::connected, version}; }
    static LinkStatus failed(const QString& error) { return {Case::failed, error}; }
    static LinkStatus demo() { return {Case::demo, {}}; }
    static LinkStatus connecting() { return {Case::connecting, {}}; }

    bool operator==(const LinkStatus&) const = default;

    /// As the sidebar and the settings show it.
    QString text() const;
};

} // namespace velmora
