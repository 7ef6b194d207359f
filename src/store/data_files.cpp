#include "store/data_files.h"

#include "model/json.h"
#include "model/validation.h"
#include "store/replace_file.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>

namespace velmora {

namespace {

constexpr std::size_t recordLimit = 200;
constexpr auto ownerFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr auto ownerDirectory = ownerFile | QFileDevice::ExeOwner;

} // namespace

DataFiles::DataFiles(const QDir& directory) : directory_(directory) {}

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
std::optional<T> DataFiles::load(File& file, std::string_view root) {
    QFile stored(directory_.filePath(file.name));
    if (!stored.exists())
        return std::nullopt;
    file.unreadable = true;
    if (!stored.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = stored.readAll();
    auto decoded =
        decode<T>({bytes.constData(), static_cast<std::size_t>(bytes.size())}, KeyStyle::fieldNames, root);
    file.unreadable = !decoded;
    return std::move(decoded.value);
}

std::optional<Settings> DataFiles::loadSettings() {
    auto settings = load<Settings>(settings_, "settings");
    if (settings && !firstProblem(*settings).empty()) {
        settings_.unreadable = true;
        return std::nullopt;
    }
    return settings;
}

std::optional<std::vector<MissionRecord>> DataFiles::loadHistory() {
    return load<std::vector<MissionRecord>>(history_, "history");
}

void DataFiles::saveSettings(const Settings& settings) {
    save(settings_, encode(settings));
}

void DataFiles::saveHistory(std::vector<const MissionRecord*> history) {
    history.resize(std::min(history.size(), recordLimit));
    save(history_, encode(history));
}

void DataFiles::save(File& file, const std::optional<std::string>& bytes) {
    if (!bytes)
        return;
    makeDirectory(directory_);
    const QString path = directory_.filePath(file.name);
    if (file.unreadable && !keepCopy(path))
        return;
    file.unreadable = false;
    replaceFile(path, *bytes);
}

/// Copies the file to NAME.unreadable, or to the first free one of NAME.unreadable.2, .3 and so on.
bool DataFiles::keepCopy(const QString& path) const {
    if (!QFile::exists(path))
        return true;
    QString copy = path + QStringLiteral(".unreadable");
    for (int number = 2; QFile::exists(copy); ++number)
        copy = path + QStringLiteral(".unreadable.%1").arg(number);
    return QFile::copy(path, copy) && QFile::setPermissions(copy, ownerFile);
}

} // namespace velmora
