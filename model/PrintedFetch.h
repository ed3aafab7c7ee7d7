#pragma once
// How every screen fetches: a failure is printed to the console and the screen carries on with
// what came back (nothing), never with an alert. The result still tells the failure, for the
// callers that must not take it for an empty list.
#include "model/ManagedObjectContext.h"
#include "platform/core/Console.h"

template <typename T = ManagedObject>
Result<QList<std::shared_ptr<T>>> fetchOrPrint(ManagedObjectContext& context,
                                               const FetchRequest& request) {
    Result<QList<std::shared_ptr<T>>> found = context.tryFetch<T>(request);
    if (!found.ok())
        Console::print(QStringLiteral("Could not fetch. %1").arg(found.error().description()));
    return found;
}
