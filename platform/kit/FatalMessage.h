#pragma once
// The window session's word before a designed stop ends the program: a message box with the
// stop's message, shown on the main thread whichever thread stopped. The console line and the
// abort follow as everywhere.
#include <QString>

namespace FatalMessage {
// Shows the message and returns when the user closed it. From another thread the main thread
// shows it; when the main thread does not start showing it within a few seconds (it may be
// waiting for this very thread), it returns without.
void show(const QString& message);
// Makes every designed stop show its message first, where someone can see it: not on the
// offscreen or minimal platforms that tests and scripts use.
void installForWindowSession();
} // namespace FatalMessage
