#pragma once

#include "model/mission_record.h"
#include "model/settings.h"

#include <QDir>

namespace velmora {

/// settings.json and history.json in the data directory. Errors are silent: a failed read returns nullopt, a
/// failed write leaves the file unchanged. A file that exists but cannot be read is copied before it is
/// overwritten.
class DataFiles {
public:
    /// Each write creates the directory (mode 0700) and its parents if they are missing.
    explicit DataFiles(const QDir& directory);

    /// $XDG_DATA_HOME/Velmora, by default ~/.local/share/Velmora.
    static QDir defaultDirectory();

    /// Creates the directory (mode 0700) and its parents if it is missing.
    static void makeDirectory(const QDir& directory);

    std::optional<Settings> loadSettings();
    std::optional<std::vector<MissionRecord>> loadHistory();

    void saveSettings(const Settings& settings);
    /// Writes the first 200 records.
    void saveHistory(std::vector<const MissionRecord*> history);

private:
    struct File {
        QString name;
        bool unreadable = false; ///< the file exists but could not be read
    };

    template <class T>
    std::optional<T> load(File& file, std::string_view root);
    void save(File& file, const std::optional<std::string>& bytes);
    bool keepCopy(const QString& path) const;

    QDir directory_;
    File settings_{QStringLiteral("settings.json")};
    File history_{QStringLiteral("history.json")};
};

} // namespace velmora
