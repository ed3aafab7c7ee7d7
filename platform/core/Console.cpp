#include "platform/core/Console.h"

#include <cstdio>
#include <mutex>

namespace {
// Lines come from the pages' picture threads too.
std::mutex guard;
bool capturing = false;
QStringList& lines() {
    static QStringList all;
    return all;
}
void write(std::FILE* out, const QString& line) {
    const std::lock_guard lock(guard);
    if (capturing)
        lines().append(line);
    const QByteArray text = line.toUtf8();
    std::fprintf(out, "%s\n", text.constData());
    std::fflush(out);
}
} // namespace

namespace Console {
void print(const QString& line) {
    write(stdout, line);
}
void log(const QString& line) {
    write(stderr, line);
}
void startCapture() {
    const std::lock_guard lock(guard);
    capturing = true;
    lines().clear();
}
void stopCapture() {
    const std::lock_guard lock(guard);
    capturing = false;
}
QStringList captured() {
    const std::lock_guard lock(guard);
    return lines();
}
} // namespace Console
