#include "platform/core/Fatal.h"

#include "platform/core/Error.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace {
std::mutex handlerLock;
Fatal::Handler& currentHandler() {
    static Fatal::Handler handler;
    return handler;
}

[[noreturn]] void writeAndAbort(const QString& message, const char* source, int line) {
    const QByteArray text = Fatal::report(message, source, line).toUtf8();
    std::fprintf(stderr, "%s\n", text.constData());
    std::fflush(stderr);
    std::abort();
}
} // namespace

namespace Fatal {
Handler setHandler(Handler handler) {
    std::lock_guard lock(handlerLock);
    std::swap(currentHandler(), handler);
    return handler;
}

QString report(const QString& message, const char* source, int line) {
    return QStringLiteral("%1:%2: Fatal error: %3")
        .arg(QLatin1String(source))
        .arg(line)
        .arg(message);
}
} // namespace Fatal

void unresolvedError(const Error& error, StopSite at) {
    fatalError(QStringLiteral("Unresolved error ") + error.stopText(), at);
}

void fatalError(const QString& message, const char* source, int line) {
    Fatal::Handler handler;
    {
        std::lock_guard lock(handlerLock);
        handler = currentHandler();
    }
    if (handler)
        handler(message, source, line);
    writeAndAbort(message, source, line);
}
