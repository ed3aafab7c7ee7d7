#pragma once
// How every screen fetches: a failure is printed to the console and the screen carries on with
// what came back (nothing), never with an alert.
#include "model/ManagedObjectContext.h"
#include "platform/core/Console.h"

template <typename T = ManagedObject>
QList<std::shared_ptr<T>> fetchOrPrint(ManagedObjectContext& context, const FetchRequest& request,
                                       StoreError* error = nullptr) {
    StoreError failure;
    QList<std::shared_ptr<T>> found = context.fetch<T>(request, &failure);
    if (failure.code != 0)
        Console::print(QStringLiteral("Could not fetch. %1").arg(failure.description()));
    if (error)
        *error = failure;
    return found;
}
