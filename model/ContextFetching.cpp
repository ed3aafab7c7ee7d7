// Fetching: the store's rows merged with the unsaved changes, in the request's order.
#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Records.h"
#include "model/Sqlite.h"
#include "platform/core/Fatal.h"

#include <sqlite3.h>

using namespace ContextSql;

#include <algorithm>

namespace {

int compareBy(const ManagedObject& a, const ManagedObject& b, int attr, AttributeType type) {
    const bool ha = a.hasValue(attr), hb = b.hasValue(attr);
    if (ha != hb)
        return ha ? 1 : -1; // absent first, as SQL sorts NULL
    if (!ha)
        return 0;
    if (type == AttributeType::Text)
        return PredicateDetail::compareText(a.value(attr).toString(), b.value(attr).toString());
    const double x = a.value(attr).toDouble(), y = b.value(attr).toDouble();
    return x < y ? -1 : (x > y ? 1 : 0);
}

} // namespace

Result<QList<ObjectPtr>> ManagedObjectContext::tryFetch(const FetchRequest& request) {
    const EntityDescription& e = checkedEntity(request.entityName);
    beginReadBatch();
    struct Key {
        int attr;
        AttributeType type;
        bool ascending;
    };
    std::vector<Key> keys;
    quint32 keyMask = 0;
    QStringList order;
    for (const SortDescriptor& s : request.sortDescriptors) {
        const int i = e.indexOf(s.key);
        if (i < 0 || e.attributes[std::size_t(i)].type == AttributeType::Data)
            fatalError(
                QStringLiteral("The entity %2 has no attribute %1 to sort by").arg(s.key, e.name),
                "Pelvane/ManagedObjectContext", __LINE__);
        keys.push_back({i, e.attributes[std::size_t(i)].type, s.ascending});
        keyMask |= 1u << i;
        order << quoted(s.key) + (s.ascending ? QLatin1String(" ASC") : QLatin1String(" DESC"));
    }
    for (const auto& t : request.predicate.terms())
        keyMask |= 1u << std::max(0, e.indexOf(t.key));
    order << QStringLiteral("pk");

    QVariantList binds;
    const QString where = request.predicate.sql(e, binds);
    // Once many objects of the entity are alive (a long list sorted again), the row ids
    // alone are read, in order, often from an index only; rows not in memory yet are read one
    // by one.
    const bool keysFirst = identity_[std::size_t(e.index)].size() >= kKeysFirstThreshold;
    const WriteSql& w = writeSql(e);
    SqliteStatement& st = db_->cached((keysFirst ? w.selectKeys : w.select) + where +
                                      QLatin1String(" ORDER BY ") + order.join(u','));
    if (!st.isValid())
        return lastError();
    for (qsizetype i = 0; i < binds.size(); ++i)
        st.bind(int(i) + 1, binds[i]);

    // Updated objects whose filter or sort values differ from the store are judged in memory.
    QSet<ManagedObject*> inMemory;
    if (!updated_.isEmpty()) {
        const auto& dirty = dirtyByAttribute_[std::size_t(e.index)];
        for (std::size_t i = 0; i < dirty.size(); ++i)
            if (keyMask & (1u << i))
                inMemory.unite(dirty[i]);
    }

    QList<ObjectPtr> result;
    int rc;
    while ((rc = st.step()) == SQLITE_ROW) {
        const qint64 rowId = st.columnInt(0);
        ObjectPtr o = keysFirst ? liveObject(e, rowId) : objectForRow(e, rowId, st);
        if (!o) {
            SqliteStatement& row = db_->cached(w.selectRow);
            row.bind(1, rowId);
            const int rowRc = row.step();
            if (rowRc == SQLITE_ROW)
                o = objectForRow(e, rowId, row);
            else if (rowRc != SQLITE_DONE) {
                const Error failure = lastError();
                row.reset();
                st.reset();
                return failure;
            }
            row.reset();
            if (!o)
                continue;
        }
        if (o->isDeleted() || (!inMemory.isEmpty() && inMemory.contains(o.get())))
            continue;
        result.append(std::move(o));
    }
    if (rc != SQLITE_DONE) {
        const Error failure = lastError();
        st.reset();
        return failure;
    }
    st.reset();

    bool merged = false;
    for (ManagedObject* o : std::as_const(inMemory))
        if (request.predicate.evaluate(*o)) {
            result.append(o->shared_from_this());
            merged = true;
        }
    QList<ManagedObject*> candidates;
    if (inserted_.size() >= kPendingIndexThreshold &&
        pendingCandidates(e, request.predicate, candidates)) {
        for (ManagedObject* o : std::as_const(candidates))
            if (request.predicate.evaluate(*o)) {
                result.append(o->shared_from_this());
                merged = true;
            }
    } else {
        for (const auto& o : std::as_const(inserted_))
            if (o->entity_ == &e && request.predicate.evaluate(*o)) {
                result.append(o);
                merged = true;
            }
    }
    if (merged)
        std::stable_sort(result.begin(), result.end(), [&](const ObjectPtr& a, const ObjectPtr& b) {
            for (const Key& k : keys) {
                const int c = compareBy(*a, *b, k.attr, k.type);
                if (c != 0)
                    return k.ascending ? c < 0 : c > 0;
            }
            // Store order: saved rows by row id, then unsaved inserts in the order made.
            if ((a->rowId_ == 0) != (b->rowId_ == 0))
                return b->rowId_ == 0;
            return a->rowId_ ? a->rowId_ < b->rowId_ : a->insertSeq_ < b->insertSeq_;
        });
    return result;
}

Result<ObjectPtr> ManagedObjectContext::existingObject(const QString& entityName, qint64 rowId) {
    const EntityDescription& e = checkedEntity(entityName);
    if (ObjectPtr live = liveObject(e, rowId))
        return live->isDeleted() ? ObjectPtr() : live;
    beginReadBatch();
    SqliteStatement& row = db_->cached(writeSql(e).selectRow);
    row.bind(1, rowId);
    const int rc = row.step();
    ObjectPtr o;
    if (rc == SQLITE_ROW)
        o = objectForRow(e, rowId, row);
    const std::optional<Error> failure =
        rc == SQLITE_ROW || rc == SQLITE_DONE ? std::nullopt : std::optional<Error>(lastError());
    row.reset();
    if (failure)
        return *failure;
    return o;
}
