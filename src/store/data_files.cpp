#include "store/data_files.h"

#include "model/json.h"
#include "model/validation.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr std::size_t recordLimit = 200;
constexpr auto ownerDirectory = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

} // namespace

DataFiles::DataFiles(const QDir& directory, const ReplaceFile& replace)
    : settings_(
          std::make_shared<StoredFile>(directory.absoluteFilePath(QStringLiteral("settings.json")), replace)),
      history_(std::make_shared<StoredFile>(directory.absoluteFilePath(QStringLiteral("history.json")),
                                            replace)) {}

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
    return ahead_.valid() ? ahead_.get() : load<std::vector<MissionRecord>>(*history_, "history");
}

void DataFiles::readHistoryInThread(std::function<void()> done) {
    if (ahead_.valid())
        return;
    ahead_ = std::async(std::launch::async, [file = history_, done = std::move(done)] {
        auto records = load<std::vector<MissionRecord>>(*file, "history");
        done();
        return records;
    });
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
