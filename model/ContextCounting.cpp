// Counting without fetching: the store counts on its indexes, and the context corrects the
// figure by its unsaved changes the way a fetch merges them.
#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"
#include "platform/core/Fatal.h"

#include <sqlite3.h>

#include <optional>

namespace {

int groupAttribute(const EntityDescription& e, const QString& key) {
    const int i = e.indexOf(key);
    if (i < 0 || e.attributes[std::size_t(i)].type == AttributeType::Data)
        fatalError(QStringLiteral("The entity %2 has no attribute %1 to group by").arg(key, e.name),
                   "Pelvane/ManagedObjectContext", __LINE__);
    return i;
}

// The group an in-memory record falls in; none when it has no value there.
std::optional<QString> groupOf(const ManagedObject& o, int attribute) {
    if (!o.hasValue(attribute))
        return std::nullopt;
    const QVariant v = o.value(attribute);
    if (o.entity().attributes[std::size_t(attribute)].type == AttributeType::Int16)
        return QString::number(v.toInt());
    return v.toString();
}

// The group of a stored row's column; none for NULL.
std::optional<QString> groupOf(const SqliteStatement& st, int col, AttributeType type) {
    if (st.isNull(col))
        return std::nullopt;
    if (type == AttributeType::Int16)
        return QString::number(st.columnInt(col));
    if (type == AttributeType::Text)
        return st.columnText(col);
    return QString::number(st.columnDouble(col));
}

} // namespace

Result<int> ManagedObjectContext::count(const FetchRequest& request) {
    const Result<qint64> n = countMatching(request, -1, nullptr);
    if (!n.ok())
        return n.error();
    return int(n.value());
}

Result<QHash<QString, qint64>> ManagedObjectContext::countBy(const FetchRequest& request,
                                                             const QString& key) {
    QHash<QString, qint64> groups;
    const EntityDescription* e = Model::entity(request.entityName);
    if (!e) {
        fetch(request); // which stops for an unknown entity
        return groups;
    }
    if (const Result<qint64> n = countMatching(request, groupAttribute(*e, key), &groups); !n.ok())
        return n.error();
    return groups;
}

Result<qint64> ManagedObjectContext::countMatching(const FetchRequest& request, int groupBy,
                                                   QHash<QString, qint64>* groups) {
    const EntityDescription* known = Model::entity(request.entityName);
    if (!known) {
        fetch(request); // which stops for an unknown entity
        return 0;
    }
    const EntityDescription& e = *known;
    const AttributeType groupType =
        groupBy >= 0 ? e.attributes[std::size_t(groupBy)].type : AttributeType::Text;
    const QString groupColumn = groupBy >= 0
                                    ? ContextSql::quoted(e.attributes[std::size_t(groupBy)].name)
                                    : QStringLiteral("1");
    beginReadBatch();
    QVariantList binds;
    const QString where = request.predicate.sql(e, binds);
    const QString table = ContextSql::quoted(e.name);
    const QString sql = groupBy >= 0
                            ? QStringLiteral("SELECT %1,count(*) FROM %2 WHERE %3 GROUP BY %1")
                                  .arg(groupColumn, table, where)
                            : QStringLiteral("SELECT count(*) FROM %1 WHERE %2").arg(table, where);
    SqliteStatement& st = db_->cached(sql);
    if (!st.isValid())
        return lastError();
    for (qsizetype i = 0; i < binds.size(); ++i)
        st.bind(int(i) + 1, binds[i]);
    qint64 total = 0;
    int rc;
    while ((rc = st.step()) == SQLITE_ROW) {
        if (groupBy < 0) {
            total = st.columnInt(0);
            continue;
        }
        const qint64 n = st.columnInt(1);
        total += n;
        if (const auto group = groupOf(st, 0, groupType))
            groups->insert(*group, n);
    }
    st.reset();
    if (rc != SQLITE_DONE) {
        if (groups)
            groups->clear();
        return lastError();
    }

    auto add = [&](const std::optional<QString>& group, qint64 n) {
        total += n;
        if (groups && group) {
            qint64& g = (*groups)[*group];
            g += n;
            if (g == 0)
                groups->remove(*group);
        }
    };

    // Stored rows that memory overrides: pending deletes, and pending updates of an attribute
    // the predicate or the grouping reads. Their store rows were counted as the store has them.
    quint32 mask = groupBy >= 0 ? 1u << groupBy : 0;
    for (const auto& t : request.predicate.terms())
        mask |= 1u << std::max(0, e.indexOf(t.key));
    QSet<ManagedObject*> inMemory;
    if (!updated_.isEmpty()) {
        const auto& dirty = dirtyByAttribute_[std::size_t(e.index)];
        for (std::size_t i = 0; i < dirty.size(); ++i)
            if (mask & (1u << i))
                inMemory.unite(dirty[i]);
    }
    QList<ManagedObject*> overridden(inMemory.begin(), inMemory.end());
    for (const auto& o : std::as_const(deleted_))
        if (o->entity_ == &e)
            overridden.append(o.get());
    if (!overridden.isEmpty()) {
        SqliteStatement& row = db_->cached(
            QStringLiteral("SELECT %1 FROM %2 WHERE pk=? AND (%3)").arg(groupColumn, table, where));
        for (ManagedObject* o : std::as_const(overridden)) {
            row.bindInt(1, o->rowId_);
            for (qsizetype i = 0; i < binds.size(); ++i)
                row.bind(int(i) + 2, binds[i]);
            if (row.step() == SQLITE_ROW)
                add(groupBy >= 0 ? groupOf(row, 0, groupType) : std::nullopt, -1);
            row.reset();
        }
    }
    for (ManagedObject* o : std::as_const(inMemory))
        if (request.predicate.evaluate(*o))
            add(groupBy >= 0 ? groupOf(*o, groupBy) : std::nullopt, 1);
    QList<ManagedObject*> candidates;
    if (inserted_.size() >= kPendingIndexThreshold &&
        pendingCandidates(e, request.predicate, candidates)) {
        for (ManagedObject* o : std::as_const(candidates))
            if (request.predicate.evaluate(*o))
                add(groupBy >= 0 ? groupOf(*o, groupBy) : std::nullopt, 1);
    } else {
        for (const auto& o : std::as_const(inserted_))
            if (o->entity_ == &e && request.predicate.evaluate(*o))
                add(groupBy >= 0 ? groupOf(*o, groupBy) : std::nullopt, 1);
    }
    return total;
}
