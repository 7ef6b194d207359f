#pragma once

#include "store/history.h"

#include <QFile>

#include <malloc.h>
#include <unistd.h>

namespace velmora {

/// Resident memory of this process in megabytes, after returning free heap memory to the system.
inline double residentMegabytes() {
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Allocated heap memory in megabytes, without the records of the history.
inline double heapMegabytes(const std::vector<HistoryEntry>& history) {
    std::size_t records = history.capacity() * sizeof(HistoryEntry);
    for (const auto& [key, record] : history) {
        records +=
            sizeof *record + (record->dronePath.capacity() + record->visitorPath.capacity()) * sizeof(P);
        for (const Notice& notice : record->notices)
            records += sizeof notice + notice.text.capacity();
    }
    const auto heap = mallinfo2();
    return (static_cast<double>(heap.uordblks + heap.hblkhd) - static_cast<double>(records)) / 1e6;
}

} // namespace velmora
