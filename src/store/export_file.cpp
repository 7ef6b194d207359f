#include "store/export_file.h"

#include "language/language.h"

namespace velmora {

ExportFile::ExportFile(const QString& path) : file_(path) {
    file_.open(QIODevice::WriteOnly);
}

/// Flushes before the commit, because a full disk may fail only then.
QString ExportFile::finish() {
    const bool written = !hasFailed();
    const bool empty = written && file_.pos() == 0;
    if (written && !empty && file_.flush() && file_.commit())
        return {};
    return Words::tr("%1 could not be written: %2.")
        .arg(file_.fileName(), empty ? Words::tr("it would be empty") : file_.errorString());
}

} // namespace velmora
