#pragma once
#include <QString>

struct Error;

#include <functional>

// Ends the process: hands the stop to the current handler, which by default writes
// "<source>:<line>: Fatal error: <message>" to stderr and aborts. A handler that returns is
// followed by that same abort, so no caller ever continues past a fatal stop.
[[noreturn]] void fatalError(const QString& message, const char* source, int line);

// The designed stops whose place is fixed, named once: the user reads the source and the line,
// which stay as they are wherever the code that stops moves.
struct StopSite {
    const char* source;
    int line;
};
namespace StopSites {
inline constexpr StopSite StoreLoad{"Pelvane/AppDelegate", 46};
inline constexpr StopSite ContextSave{"Pelvane/AppDelegate", 63};
inline constexpr StopSite ExportPicture{"Pelvane/ExportViewController", 160};
inline constexpr StopSite ImportStoreLoad{"Pelvane/ImportViewController", 217};
inline constexpr StopSite ImportFieldCount{"Pelvane/ImportViewController", 262};
inline constexpr StopSite ImportNumber{"Pelvane/ImportViewController", 271};
} // namespace StopSites
[[noreturn]] inline void fatalError(const QString& message, StopSite at) {
    fatalError(message, at.source, at.line);
}
// The store's designed stop: "Unresolved error " and the cause (Error::stopText()).
[[noreturn]] void unresolvedError(const Error& error, StopSite at);

namespace Fatal {
// What a designed stop does instead of the default: the window session shows the message
// first, fuzz targets and tests tell it from a crash (a handler may throw to unwind).
using Handler = std::function<void(const QString& message, const char* source, int line)>;
// Installs a handler and returns the one it replaces; an empty handler restores the default.
Handler setHandler(Handler handler);
// The line the default handler writes, without its line end.
QString report(const QString& message, const char* source, int line);
} // namespace Fatal
