#pragma once
// The shared application object as the screens see it: its delegate owns the store.
// The delegate itself lives with the program's wiring; screens only know this interface.
#include "model/PersistentContainer.h"

class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;
    virtual PersistentContainer& persistentContainer() = 0;
    virtual void saveContext() = 0;
};

namespace Application {
void setDelegate(ApplicationDelegate* delegate);
// The delegate; a missing one is a programming error (fatal).
ApplicationDelegate& delegate();
// The main context of the delegate's container.
ManagedObjectContext* viewContext();
// Saves the record's own context; skips silently when it has none, prints a failure and
// carries on (the change stays pending).
void saveRecord(const ObjectPtr& record);
} // namespace Application
