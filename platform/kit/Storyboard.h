#pragma once
// The table of segues: which identifier opens which screen, and how. Screens never construct
// each other; they perform segues by identifier. The program fills the table at start-up.
#include <QString>
#include <functional>

class ViewController;

enum class SegueKind { Push, Modal };

struct StoryboardSegue {
    QString identifier;
    ViewController* source = nullptr;
    ViewController* destination = nullptr;
};

namespace Storyboard {
using Factory = std::function<ViewController*()>;
void registerSegue(const QString& identifier, SegueKind kind, Factory factory);
bool hasSegue(const QString& identifier);
SegueKind kindOf(const QString& identifier);
// A new destination screen; an unknown identifier is a programming error (fatal).
ViewController* instantiate(const QString& identifier);
void clear();
} // namespace Storyboard
