#pragma once
// Putting a backup or snapshot in place of the collection from the window: the file is copied
// beside the collection and checked once on a worker, the user is told what each side holds and
// asked, and only then is the collection replaced. Used by Import / Export and by the banner
// that offers a snapshot when the collection file is damaged.
#include <QString>
#include <functional>

class ViewController;

namespace RestoreFlow {
// `busy` is told when the work starts and ends (the screen's buttons and progress); `done` after
// a restore that happened.
void start(ViewController* screen, const QString& file, std::function<void(bool)> busy = {},
           std::function<void()> done = {});
// "N coins" in the user's locale.
QString coins(qint64 n);
} // namespace RestoreFlow
