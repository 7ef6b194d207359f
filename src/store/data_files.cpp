#include "store/data_files.h"

#include "model/json.h"
#include "model/validation.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <future>
#include <utility>

namespace velmora {

namespace {

constexpr std::size_t recordLimit = 200;
const QString historyName = QStringLiteral("history.json");
constexpr std::string_view historyRoot = "history"; // in texts of errors
constexpr auto ownerDirectory = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

} // namespace

struct DataDirectory::HistoryAhead {
    StoredFile file;                                                ///< belongs to the thread until it ends
    std::future<std::optional<std::vector<MissionRecord>>> records; ///< last, so that it ends first
};

void DataDirectory::readHistoryAhead() {
    ahead_ = std::make_shared<HistoryAhead>(StoredFile(path_.absoluteFilePath(historyName)));
    ahead_->records = std::async(std::launch::async, [&file = ahead_->file] {
        return DataFiles::load<std::vector<MissionRecord>>(file, historyRoot);
    });
}

DataFiles::DataFiles(const DataDirectory& directory, const ReplaceFile& replace)
    : settings_(std::make_shared<StoredFile>(
          directory.path_.absoluteFilePath(QStringLiteral("settings.json")), replace)),
      history_(std::make_shared<StoredFile>(directory.path_.absoluteFilePath(historyName), replace)),
      ahead_(directory.ahead_) {}

QDir DataFiles::defaultDirectory() {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                QStringLiteral("/Velmora"));
}

void DataFiles::makeDirectory(const QDir& directory) {
    if (directory.exists())
        return;
    QDir().mkpath(directory.absolutePath());
    QFile::setPermissions(directory.absolutePath(), ownerDirectory);
}

template <class T>
std::optional<T> DataFiles::load(StoredFile& file, std::string_view root) {
    const auto bytes = file.read();
    if (!bytes)
        return std::nullopt;
    auto decoded =
        decode<T>({bytes->constData(), static_cast<std::size_t>(bytes->size())}, KeyStyle::fieldNames, root);
    if (!decoded)
        file.markUnreadable();
    return std::move(decoded.value);
}

std::optional<Settings> DataFiles::loadSettings() {
    auto settings = load<Settings>(*settings_, "settings");
    if (settings && !firstProblem(*settings).empty()) {
        settings_->markUnreadable();
        return std::nullopt;
    }
    return settings;
}

std::optional<std::vector<MissionRecord>> DataFiles::loadHistory() {
    if (const auto ahead = std::exchange(ahead_, nullptr); ahead && ahead->records.valid()) {
        auto records = ahead->records.get();
        if (history_->takeReading(ahead->file))
            return records;
    }
    return load<std::vector<MissionRecord>>(*history_, historyRoot);
}

void DataFiles::saveSettings(const Settings& settings) {
    save(settings_, settings);
}

void DataFiles::saveHistory(Records history) {
    history.resize(std::min(history.size(), recordLimit));
    save(history_, std::move(history));
}

template <class T>
void DataFiles::save(const std::shared_ptr<StoredFile>& file, T value) {
    thread_.save(file->path().toStdString(), [file, value = std::move(value)] {
        const auto bytes = encode(value);
        if (!bytes)
            return false;
        makeDirectory(QFileInfo(file->path()).absoluteDir());
        return file->replace(*bytes);
    });
}

} // namespace velmora
