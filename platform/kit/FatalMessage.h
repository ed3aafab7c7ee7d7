#pragma once
// The window session's word before a designed stop ends the program: a message box with the
// stop's message. It is shown by a second run of the program, so the stopping thread waits for
// nothing and the message stays up after this process has ended. The console line and the abort
// follow as everywhere.
#include <QString>

class QMessageBox;

namespace FatalMessage {
// `pelvane --fatal-message TEXT` shows TEXT in a message box and ends when it is closed.
inline constexpr char kOption[] = "--fatal-message";
// Opens the box (not modal in a loop of its own); it deletes itself when closed.
QMessageBox* open(const QString& message);
// Starts the program again to show the message; false when it cannot be started.
bool showInOwnProcess(const QString& message);
// Makes every designed stop show its message first, where someone can see it: not on the
// offscreen or minimal platforms that tests and scripts use.
void installForWindowSession();
} // namespace FatalMessage
