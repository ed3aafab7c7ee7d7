#include "platform/core/Console.h"

#include <cstdio>

namespace {
bool capturing = false;
QStringList& lines() {
    static QStringList all;
    return all;
}
void write(std::FILE* out, const QString& line) {
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
    capturing = true;
    lines().clear();
}
void stopCapture() {
    capturing = false;
}
QStringList captured() {
    return lines();
}
} // namespace Console
