#include "platform/Fatal.h"

#include <cstdio>
#include <cstdlib>

void fatalError(const QString& message, const char* source, int line) {
    const QByteArray text = message.toUtf8();
    std::fprintf(stderr, "%s:%d: Fatal error: %s\n", source, line, text.constData());
    std::fflush(stderr);
    std::abort();
}
