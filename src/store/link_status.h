#pragma once

#include <QString>

namespace velmora {

/// Status of the connection to the server.
struct LinkStatus {
    enum class Case { connected, failed, demo, connecting };

    Case kind = Case::demo;
    QString payload; ///< the server's version when connected, the error's text when failed

    static LinkStatus connected(const QString& version) { return {Case::connected, version}; }
    static LinkStatus failed(const QString& error) { return {Case::failed, error}; }
    static LinkStatus demo() { return {Case::demo, {}}; }
    static LinkStatus connecting() { return {Case::connecting, {}}; }

    bool operator==(const LinkStatus&) const = default;

    /// The text in the sidebar and the settings.
    QString text() const;
};

} // namespace velmora
