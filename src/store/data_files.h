#pragma once

#include "model/mission_record.h"
#include "model/settings.h"

#include <QDir>

namespace velmora {

/// settings.json and history.json in the data directory. Failures are silent: reading then gives nothing,
/// and a failed write leaves the file as it was. A file that exists but cannot be read as what it should be
/// is copied beside itself before anything is written over it.
class DataFiles {
public:
    /// The directory (mode 0700) is made with its parents whenever something is written.
    explicit DataFiles(QDir directory);

    /// $XDG_DATA_HOME/Velmora, by default ~/.local/share/Velmora.
    static QDir defaultDirectory();

    /// Makes a directory with its parents if it is missing, for the owner's eyes only.
    static void makeDirectory(const QDir& directory);

    std::optional<Settings> loadSettings();
    std::optional<std::vector<MissionRecord>> loadHistory();

    void saveSettings(const Settings& settings);
    /// Writes the first 200 records.
    void saveHistory(std::vector<const MissionRecord*> history);

private:
    struct File {
        QString name;
        bool unreadable = false; ///< holds something of the owner's that we could not read
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
