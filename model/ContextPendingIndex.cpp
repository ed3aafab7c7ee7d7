// The index of unsaved inserts by a text value, kept up to date as they change.
#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Records.h"
#include "model/Sqlite.h"
#include "platform/core/Fatal.h"

#include <sqlite3.h>

using namespace ContextSql;

bool ManagedObjectContext::pendingCandidates(const EntityDescription& e, const Predicate& predicate,
                                             QList<ManagedObject*>& candidates) {
    for (const Predicate::Term& t : predicate.terms()) {
        const int i = e.indexOf(t.key);
        if (i < 0 || e.attributes[std::size_t(i)].type != AttributeType::Text)
            continue;
        bool nil = false;
        const QVariant want = PredicateDetail::comparable(AttributeType::Text, t.argument, nil);
        if (nil || !want.isValid())
            continue;
        const quint32 key = quint32(e.index) << 16 | quint32(i);
        auto it = pendingIndexes_.find(key);
        if (it == pendingIndexes_.end()) {
            it = pendingIndexes_.insert(key, {});
            for (const auto& o : std::as_const(inserted_))
                if (o->entity_ == &e && o->hasValue(i)) {
                    const QString value = o->value(i).toString();
                    it->byValue.insert(value, o.get());
                    it->valueOf.insert(o.get(), value);
                }
        }
        candidates = it->byValue.values(want.toString());
        return true;
    }
    return false;
}

void ManagedObjectContext::reindexPending(ManagedObject& o, int attribute) {
    auto it = pendingIndexes_.find(quint32(o.entity_->index) << 16 | quint32(attribute));
    if (it == pendingIndexes_.end())
        return;
    if (auto old = it->valueOf.find(&o); old != it->valueOf.end()) {
        it->byValue.remove(*old, &o);
        it->valueOf.erase(old);
    }
    if (o.hasValue(attribute)) {
        const QString value = o.value(attribute).toString();
        it->byValue.insert(value, &o);
        it->valueOf.insert(&o, value);
    }
}

void ManagedObjectContext::unindexPending(ManagedObject& o) {
    for (auto it = pendingIndexes_.begin(); it != pendingIndexes_.end(); ++it)
        if (auto old = it->valueOf.find(&o); old != it->valueOf.end()) {
            it->byValue.remove(*old, &o);
            it->valueOf.erase(old);
        }
}
