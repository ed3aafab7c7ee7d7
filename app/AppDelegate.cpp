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
            [](const StoreDescription&, const std::optional<StoreError>& error) {
                if (error)
                    fatalError(QStringLiteral("Unresolved error %1, %2")
                                   .arg(error->description(), error->userInfoDescription()),
                               "Pelvane/AppDelegate", 46);
            });
    }
    return *container_;
}

void AppDelegate::saveContext() {
    ManagedObjectContext* context = persistentContainer().viewContext();
    if (!context->hasChanges())
        return;
    if (auto error = context->save())
        fatalError(QStringLiteral("Unresolved error %1, %2")
                       .arg(error->description(), error->userInfoDescription()),
                   "Pelvane/AppDelegate", 63);
}
