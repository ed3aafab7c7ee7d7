#include "app/AppDelegate.h"

#include "platform/core/Fatal.h"

AppDelegate::AppDelegate() {
    Application::setDelegate(this);
}

AppDelegate::~AppDelegate() {
    Application::setDelegate(nullptr);
}

PersistentContainer& AppDelegate::persistentContainer() {
    if (!container_) {
        container_ = std::make_unique<PersistentContainer>(QStringLiteral("Pelvane"));
        container_->loadPersistentStores(
            [](const StoreDescription&, const std::optional<Error>& error) {
                if (error)
                    unresolvedError(*error, StopSites::StoreLoad);
            });
    }
    return *container_;
}

void AppDelegate::saveContext() {
    ManagedObjectContext* context = persistentContainer().viewContext();
    if (!context->hasChanges())
        return;
    if (const auto error = context->save(); !error.ok())
        unresolvedError(error.error(), StopSites::ContextSave);
}
