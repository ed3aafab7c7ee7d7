#include "platform/kit/Storyboard.h"

#include "platform/core/Fatal.h"

#include <QHash>

namespace {
struct Entry {
    SegueKind kind;
    Storyboard::Factory factory;
};
QHash<QString, Entry>& table() {
    static QHash<QString, Entry> t;
    return t;
}
const Entry& entry(const QString& identifier) {
    auto it = table().constFind(identifier);
    if (it == table().cend())
        fatalError(
            QStringLiteral("No transition named \"%1\" leads from this screen").arg(identifier),
            "Pelvane/Storyboard", __LINE__);
    return *it;
}
} // namespace

namespace Storyboard {
void registerSegue(const QString& identifier, SegueKind kind, Factory factory) {
    table().insert(identifier, {kind, std::move(factory)});
}
bool hasSegue(const QString& identifier) {
    return table().contains(identifier);
}
SegueKind kindOf(const QString& identifier) {
    return entry(identifier).kind;
}
ViewController* instantiate(const QString& identifier) {
    return entry(identifier).factory();
}
void clear() {
    table().clear();
}
} // namespace Storyboard
