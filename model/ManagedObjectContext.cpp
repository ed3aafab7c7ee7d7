#include "model/ManagedObjectContext.h"

#include <QCoreApplication>
#include <QTimer>

#include "model/Records.h"
#include "model/Sqlite.h"
#include "platform/Fatal.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace {

QString quoted(const QString& name) {
    return QLatin1Char('"') + name + QLatin1Char('"');
}

QStringList columnsOf(const EntityDescription& e, bool data) {
    QStringList cols;
    for (const auto& a : e.attributes)
        if ((a.type == AttributeType::Data) == data)
            cols << quoted(a.name);
    return cols;
}

// Columns of the entity's main table: every attribute but the pictures, in model order.
const QStringList& mainColumns(const EntityDescription& e) {
    static const std::vector<QStringList> all = [] {
        std::vector<QStringList> v;
        for (auto* entity : Model::entities())
            v.push_back(columnsOf(*entity, false));
        return v;
    }();
    return all[std::size_t(e.index)];
}

const QStringList& dataColumns(const EntityDescription& e) {
    static const std::vector<QStringList> all = [] {
        std::vector<QStringList> v;
        for (auto* entity : Model::entities())
            v.push_back(columnsOf(*entity, true));
        return v;
    }();
    return all[std::size_t(e.index)];
}

// The statements the context uses, per entity, built once.
struct WriteSql {
    QString select, selectKeys, selectRow, insert, insertData, update, remove, removeData, loadData;
};

const WriteSql& writeSql(const EntityDescription& e) {
    static const std::vector<WriteSql> all = [] {
        std::vector<WriteSql> v;
        for (auto* entity : Model::entities()) {
            const QStringList& cols = mainColumns(*entity);
            const QStringList& dcols = dataColumns(*entity);
            QStringList sets;
            for (const QString& c : cols)
                sets << c + QLatin1String("=?");
            WriteSql w;
            w.select = QStringLiteral("SELECT pk,%1 FROM %2 WHERE ")
                           .arg(cols.join(u','), quoted(entity->name));
            w.selectKeys = QStringLiteral("SELECT pk FROM %1 WHERE ").arg(quoted(entity->name));
            w.selectRow = QStringLiteral("SELECT pk,%1 FROM %2 WHERE pk=?")
                              .arg(cols.join(u','), quoted(entity->name));
            w.insert = QStringLiteral("INSERT INTO %1 (%2) VALUES (?%3)")
                           .arg(quoted(entity->name), cols.join(u','),
                                QStringLiteral(",?").repeated(cols.size() - 1));
            w.update = QStringLiteral("UPDATE %1 SET %2 WHERE pk=?")
                           .arg(quoted(entity->name), sets.join(u','));
            w.remove = QStringLiteral("DELETE FROM %1 WHERE pk=?").arg(quoted(entity->name));
            if (entity->hasData()) {
                w.insertData = QStringLiteral("INSERT OR REPLACE INTO %1 (pk,%2) VALUES (?%3)")
                                   .arg(quoted(entity->dataTable()), dcols.join(u','),
                                        QStringLiteral(",?").repeated(dcols.size()));
                w.removeData =
                    QStringLiteral("DELETE FROM %1 WHERE pk=?").arg(quoted(entity->dataTable()));
                w.loadData = QStringLiteral("SELECT %1 FROM %2 WHERE pk=?")
                                 .arg(dcols.join(u','), quoted(entity->dataTable()));
            }
            v.push_back(w);
        }
        return v;
    }();
    return all[std::size_t(e.index)];
}

quint32 dataMask(const EntityDescription& e) {
    quint32 m = 0;
    for (std::size_t i = 0; i < e.attributes.size(); ++i)
        if (e.attributes[i].type == AttributeType::Data)
            m |= 1u << i;
    return m;
}

const EntityDescription& checkedEntity(const QString& name) {
    const EntityDescription* e = Model::entity(name);
    if (!e)
        fatalError(QStringLiteral("executeFetchRequest:error: A fetch request must have an "
                                  "entity. (%1)")
                       .arg(name),
                   "Pelvane/ManagedObjectContext", __LINE__);
    return *e;
}

} // namespace

ManagedObjectContext::ManagedObjectContext(SqliteDatabase* db)
    : db_(db)
    , identity_(Model::entities().size())
    , batchEnd_(std::make_unique<QTimer>()) {
    for (auto* e : Model::entities())
        dirtyByAttribute_.emplace_back(e->attributes.size());
    batchEnd_->setSingleShot(true);
    batchEnd_->setInterval(0);
    QObject::connect(batchEnd_.get(), &QTimer::timeout, [this] { endReadBatch(); });
}

ManagedObjectContext::~ManagedObjectContext() {
    endReadBatch();
    for (auto& map : identity_)
        for (auto& weak : map)
            if (auto o = weak.lock())
                o->context_ = nullptr;
    for (auto& o : inserted_)
        o->context_ = nullptr;
}

ObjectPtr ManagedObjectContext::makeObject(const EntityDescription& e) const {
    switch (e.index) {
    case 0:
        return std::make_shared<Coins>();
    case 1:
        return std::make_shared<GradeNumbers>();
    case 2:
        return std::make_shared<StrikeCharacters>();
    default:
        return std::make_shared<CoinEdge>();
    }
}

ObjectPtr ManagedObjectContext::insertNewObject(const QString& entityName) {
    ObjectPtr o = makeObject(checkedEntity(entityName));
    o->context_ = this;
    o->state_ = ManagedObject::State::Inserted;
    o->insertSeq_ = nextInsertSeq_++;
    inserted_.append(o);
    ++changeCount_;
    return o;
}

void ManagedObjectContext::noteChange(ManagedObject& o, int attribute) {
    ++changeCount_;
    if (o.state_ == ManagedObject::State::Inserted) {
        reindexPending(o, attribute);
        return;
    }
    if (o.state_ == ManagedObject::State::Clean) {
        o.state_ = ManagedObject::State::Updated;
        updated_.insert(&o, o.shared_from_this());
    }
    if (o.state_ != ManagedObject::State::Updated)
        return;
    const quint32 bit = 1u << attribute;
    if (!(o.dirty_ & bit)) {
        o.dirty_ |= bit;
        dirtyByAttribute_[std::size_t(o.entity_->index)][std::size_t(attribute)].insert(&o);
    }
}

void ManagedObjectContext::deleteObject(const ObjectPtr& o) {
    if (!o || o->context_ != this || o->isDeleted())
        return;
    ++changeCount_;
    if (o->state_ == ManagedObject::State::Inserted) {
        unindexPending(*o);
        inserted_.removeOne(o);
        o->state_ = ManagedObject::State::Gone;
        o->context_ = nullptr;
        return;
    }
    if (o->state_ == ManagedObject::State::Updated) {
        updated_.remove(o.get());
        for (auto& set : dirtyByAttribute_[std::size_t(o->entity_->index)])
            set.remove(o.get());
        o->dirty_ = 0;
    }
    o->state_ = ManagedObject::State::Deleted;
    deleted_.append(o);
}

bool ManagedObjectContext::hasChanges() const {
    return !inserted_.isEmpty() || !updated_.isEmpty() || !deleted_.isEmpty();
}

StoreError ManagedObjectContext::lastError() const {
    StoreError e;
    e.code = db_->errorCode();
    e.message = db_->errorMessage();
    e.userInfo.insert(QStringLiteral("NSSQLiteErrorDomain"), QString::number(e.code));
    e.userInfo.insert(QStringLiteral("reason"), e.message);
    return e;
}

static void bindMainValues(SqliteStatement& st, const ManagedObject& o) {
    int col = 1;
    const EntityDescription& e = o.entity();
    for (std::size_t i = 0; i < e.attributes.size(); ++i) {
        if (e.attributes[i].type == AttributeType::Data)
            continue;
        st.bind(col++, o.hasValue(int(i)) ? o.value(int(i)) : QVariant());
    }
}

static void bindDataValues(SqliteStatement& st, const ManagedObject& o, int first) {
    const EntityDescription& e = o.entity();
    for (std::size_t i = 0; i < e.attributes.size(); ++i)
        if (e.attributes[i].type == AttributeType::Data)
            st.bind(first++, o.hasValue(int(i)) ? o.value(int(i)) : QVariant());
}

bool ManagedObjectContext::writePending(std::vector<qint64>& newIds) {
    newIds.clear();
    newIds.reserve(std::size_t(inserted_.size()));
    for (const auto& o : inserted_) {
        const EntityDescription& e = *o->entity_;
        SqliteStatement& st = db_->cached(writeSql(e).insert);
        bindMainValues(st, *o);
        if (st.step() != SQLITE_DONE)
            return false;
        const qint64 id = db_->lastInsertRowId();
        newIds.push_back(id);
        if (e.hasData() && (o->present_ & dataMask(e))) {
            SqliteStatement& ds = db_->cached(writeSql(e).insertData);
            ds.bindInt(1, id);
            bindDataValues(ds, *o, 2);
            if (ds.step() != SQLITE_DONE)
                return false;
        }
    }
    for (const auto& o : std::as_const(updated_)) {
        const EntityDescription& e = *o->entity_;
        SqliteStatement& st = db_->cached(writeSql(e).update);
        bindMainValues(st, *o);
        st.bindInt(int(mainColumns(e).size()) + 1, o->rowId_);
        if (st.step() != SQLITE_DONE)
            return false;
        if (e.hasData() && (o->dirty_ & dataMask(e))) {
            SqliteStatement& ds = db_->cached(writeSql(e).insertData);
            ds.bindInt(1, o->rowId_);
            bindDataValues(ds, *o, 2);
            if (ds.step() != SQLITE_DONE)
                return false;
        }
    }
    for (const auto& o : deleted_) {
        const EntityDescription& e = *o->entity_;
        SqliteStatement& st = db_->cached(writeSql(e).remove);
        st.bindInt(1, o->rowId_);
        if (st.step() != SQLITE_DONE)
            return false;
        if (e.hasData()) {
            SqliteStatement& ds = db_->cached(writeSql(e).removeData);
            ds.bindInt(1, o->rowId_);
            if (ds.step() != SQLITE_DONE)
                return false;
        }
    }
    return true;
}

std::optional<StoreError> ManagedObjectContext::save() {
    if (!hasChanges())
        return std::nullopt;
    // Pictures of changed records must be complete before they are rewritten.
    for (auto& o : updated_)
        if (o->entity_->hasData() && (o->dirty_ & dataMask(*o->entity_)))
            loadData(*o);

    // A read batch still open becomes the write transaction, which spares ending one
    // transaction only to begin the next. Should another writer have changed the file since the
    // batch began, the batch cannot write: the changes are written again in a fresh one.
    // The error of a write transaction that could not begin, if any.
    auto beginWrite = [this]() -> std::optional<StoreError> {
        SqliteStatement& begin = db_->cached(QStringLiteral("BEGIN IMMEDIATE"));
        std::optional<StoreError> error;
        if (begin.step() != SQLITE_DONE)
            error = lastError();
        begin.reset();
        return error;
    };
    const bool upgrade = readBatch_;
    if (upgrade) {
        readBatch_ = false;
        batchEnd_->stop();
        db_->resetAll();
    } else if (auto error = beginWrite()) {
        return error;
    }
    auto fail = [this]() {
        StoreError err = lastError();
        db_->exec(QStringLiteral("ROLLBACK"));
        db_->resetAll();
        return err;
    };
    std::vector<qint64> newIds;
    bool written = writePending(newIds);
    if (!written && upgrade && (sqlite3_errcode(db_->handle()) & 0xff) == SQLITE_BUSY) {
        db_->exec(QStringLiteral("ROLLBACK"));
        db_->resetAll();
        if (auto error = beginWrite())
            return error;
        written = writePending(newIds);
    }
    if (!written)
        return fail();
    SqliteStatement& commit = db_->cached(QStringLiteral("COMMIT"));
    if (commit.step() != SQLITE_DONE)
        return fail();
    commit.reset();

    // Only now that the transaction is in does memory follow it.
    for (qsizetype i = 0; i < inserted_.size(); ++i) {
        const ObjectPtr& o = inserted_[i];
        o->rowId_ = newIds[std::size_t(i)];
        o->state_ = ManagedObject::State::Clean;
        o->dataLoaded_ = dataMask(*o->entity_);
        identity_[std::size_t(o->entity_->index)].insert(o->rowId_, o);
    }
    for (const auto& o : std::as_const(updated_)) {
        o->state_ = ManagedObject::State::Clean;
        o->dirty_ = 0;
    }
    for (const auto& o : deleted_) {
        o->state_ = ManagedObject::State::Gone;
        o->context_ = nullptr;
        identity_[std::size_t(o->entity_->index)].remove(o->rowId_);
    }
    for (auto& perEntity : dirtyByAttribute_)
        for (auto& set : perEntity)
            set.clear();
    inserted_.clear();
    ++changeCount_;
    pendingIndexes_.clear();
    updated_.clear();
    deleted_.clear();
    return std::nullopt;
}

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

void ManagedObjectContext::beginReadBatch() {
    if (readBatch_ || !sqlite3_get_autocommit(db_->handle()))
        return;
    SqliteStatement& begin = db_->cached(QStringLiteral("BEGIN"));
    if (begin.step() != SQLITE_DONE)
        return; // the reads then run one by one, as without a batch
    readBatch_ = true;
    if (QCoreApplication::instance())
        batchEnd_->start();
}

void ManagedObjectContext::endReadBatch() {
    if (!readBatch_)
        return;
    readBatch_ = false;
    batchEnd_->stop();
    db_->resetAll(); // no statement may still be reading
    if (!db_->exec(QStringLiteral("COMMIT")))
        db_->exec(QStringLiteral("ROLLBACK"));
}

void ManagedObjectContext::loadData(ManagedObject& o) {
    const EntityDescription& e = *o.entity_;
    beginReadBatch();
    SqliteStatement& st = db_->cached(writeSql(e).loadData);
    st.bindInt(1, o.rowId_);
    const int rc = st.step();
    const bool found = rc == SQLITE_ROW;
    if (rc != SQLITE_ROW && rc != SQLITE_DONE && !readError_)
        readError_ = lastError();
    int col = 0;
    for (std::size_t i = 0; i < e.attributes.size(); ++i) {
        if (e.attributes[i].type != AttributeType::Data)
            continue;
        const quint32 bit = 1u << i;
        if (!(o.dataLoaded_ & bit)) {
            const bool has = found && !st.isNull(col);
            o.data_[std::size_t(e.attributes[i].slot)] = has ? st.columnBlob(col) : QByteArray();
            o.present_ = has ? (o.present_ | bit) : (o.present_ & ~bit);
            o.dataLoaded_ |= bit;
        }
        ++col;
    }
    st.reset();
}

void ManagedObjectContext::forget(const EntityDescription& e, qint64 rowId) {
    auto& map = identity_[std::size_t(e.index)];
    // The row id may already stand for a newer object (a deleted last row's id is reused).
    if (auto it = map.find(rowId); it != map.end() && it->expired())
        map.erase(it);
}

ObjectPtr ManagedObjectContext::liveObject(const EntityDescription& e, qint64 rowId) const {
    const auto& map = identity_[std::size_t(e.index)];
    auto it = map.find(rowId);
    return it != map.end() ? it->lock() : nullptr;
}

ObjectPtr ManagedObjectContext::objectForRow(const EntityDescription& e, qint64 rowId,
                                             SqliteStatement& row) {
    if (ObjectPtr live = liveObject(e, rowId))
        return live;
    auto& map = identity_[std::size_t(e.index)];
    ObjectPtr o = makeObject(e);
    o->context_ = this;
    o->rowId_ = rowId;
    int col = 1;
    for (std::size_t i = 0; i < e.attributes.size(); ++i) {
        const AttributeDescription& a = e.attributes[i];
        if (a.type == AttributeType::Data)
            continue;
        if (!row.isNull(col)) {
            o->present_ |= 1u << i;
            if (a.type == AttributeType::Text)
                o->texts_[std::size_t(a.slot)] = row.columnText(col);
            else if (a.type == AttributeType::Int16)
                o->numbers_[std::size_t(a.slot)] = double(row.columnInt(col));
            else
                o->numbers_[std::size_t(a.slot)] = row.columnDouble(col);
        }
        ++col;
    }
    map.insert(rowId, o);
    return o;
}

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

QList<ObjectPtr> ManagedObjectContext::fetch(const FetchRequest& request, StoreError* error) {
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
            fatalError(QStringLiteral("keypath %1 not found in entity %2").arg(s.key, e.name),
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
    if (!st.isValid()) {
        if (error)
            *error = lastError();
        return {};
    }
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
                if (error)
                    *error = lastError();
                row.reset();
                st.reset();
                return {};
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
        if (error)
            *error = lastError();
        st.reset();
        return {};
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

std::optional<StoreError> ManagedObjectContext::takeReadError() {
    return std::exchange(readError_, std::nullopt);
}

void ManagedObjectContext::setWaitWhenBusy(bool wait) {
    db_->setBusyTimeout(wait ? SqliteDatabase::BusyTimeoutMs : 0);
}
