#pragma once
#include <QString>
#include <QStringList>

// The program's console: print() writes behavioural lines ("First Launch", "Option 1 selected")
// to stdout, log() writes diagnostics to stderr. Tests capture both.
namespace Console {
void print(const QString& line);
void log(const QString& line);
// Start collecting every printed and logged line (tests).
void startCapture();
void stopCapture();
// Lines printed or logged since startCapture(), in order.
QStringList captured();
} // namespace Console
