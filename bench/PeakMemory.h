#pragma once
// Memory figures of /proc/self/status in kB (Linux): VmHWM is the peak resident memory since the
// last reset, VmRSS the current one.
#include <QFile>

namespace PeakMemory {
inline long statusKb(const char* key) {
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(key))
            return line.mid(qsizetype(qstrlen(key))).trimmed().split(' ').first().toLong();
    return 0;
}
inline long peakKb() {
    return statusKb("VmHWM:");
}
inline long currentKb() {
    return statusKb("VmRSS:");
}
inline void resetPeak() {
    QFile clear(QStringLiteral("/proc/self/clear_refs"));
    if (clear.open(QIODevice::WriteOnly))
        clear.write("5");
}
} // namespace PeakMemory
