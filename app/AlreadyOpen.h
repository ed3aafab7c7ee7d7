#pragma once
// What a second window on a collection says before it goes: the collection is open in another
// Pelvane (the one named), which is where to carry on.
#include <QString>

class QMessageBox;

namespace AlreadyOpen {
// The message box (not modal in a loop of its own; it deletes itself when closed). On the
// offscreen and minimal platforms, where nobody could close it, the reason goes to standard
// error instead and nothing is returned.
QMessageBox* show(const QString& storePath, const QString& reason);
} // namespace AlreadyOpen
