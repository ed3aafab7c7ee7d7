#pragma once
#include <QString>

// Ends the process: writes "<source>:<line>: Fatal error: <message>" to stderr and aborts.
[[noreturn]] void fatalError(const QString& message, const char* source, int line);
