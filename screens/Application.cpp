#include "screens/Application.h"

#include "platform/core/Console.h"
#include "platform/core/Fatal.h"

namespace {
ApplicationDelegate* current = nullptr;
}

namespace Application {

void setDelegate(ApplicationDelegate* delegate) {
    current = delegate;
}

ApplicationDelegate& delegate() {
    if (!current)
        fatalError(QStringLiteral("The application has no delegate"), "Pelvane/Application",
                   __LINE__);
    return *current;
}

ManagedObjectContext* viewContext() {
    return delegate().persistentContainer().viewContext();
}

void saveRecord(const ObjectPtr& record) {
    ManagedObjectContext* context = record ? record->managedObjectContext() : nullptr;
    if (!context)
        return;
    if (const auto error = context->save(); !error.ok())
        Console::print(QStringLiteral("Could not save. %1").arg(error.error().stopText()));
}

} // namespace Application
