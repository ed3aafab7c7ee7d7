#pragma once
// A look at the collection file after the window shows, on a worker so the window never waits
// for it: when SQLite finds the file damaged, a banner says so above the screens and offers the
// newest snapshot that passes every check, by its date and its number of coins.
#include <QString>

class Window;
class QWidget;

namespace DamagedStoreBanner {
// Starts the check of the store at the path; the banner, if any, goes into the window.
void checkSoon(Window* window, const QString& storePath);
// The banner for a damaged store: the newest whole snapshot (empty when there is none), its
// date as shown, and its coins.
QWidget* make(Window* window, const QString& snapshot, const QString& date, qint64 coins);
} // namespace DamagedStoreBanner
