#include "model/ManagedObjectContext.h"

#include <QCoreApplication>
#include <QTimer>

#include "model/ContextSql.h"
#include "model/Records.h"
#include "model/Sqlite.h"
#include "platform/core/Fatal.h"

#include <sqlite3.h>

#include <utility>

using namespace ContextSql;

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
    if (db_->handle())
        sqlite3_create_function(db_->handle(), "journal_seq", 0, SQLITE_UTF8, nullptr, nullptr,
                                nullptr, nullptr);
    for (auto& map : identity_)
        for (auto& weak : map)
            if (auto o = weak.lock())
                o->context_ = nullptr;
    for (auto& o : inserted_)
        o->context_ = nullptr;
}

void ManagedObjectContext::reset() {
    endReadBatch();
    for (auto& map : identity_) {
        for (auto& weak : map)
            if (auto o = weak.lock())
                o->context_ = nullptr;
        map.clear();
    }
    for (auto& o : inserted_)
        o->context_ = nullptr;
    inserted_.clear();
    updated_.clear();
    deleted_.clear();
    for (auto& perEntity : dirtyByAttribute_)
        for (auto& set : perEntity)
            set.clear();
    pendingIndexes_.clear();
    readError_.reset();
    ++changeCount_;
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
    o->changeCause_ = changeCause_;
    inserted_.append(o);
    ++changeCount_;
    return o;
}

void ManagedObjectContext::noteChange(ManagedObject& o, int attribute) {
    ++changeCount_;
    if (o.entity_ == &Model::coins() &&
        (attribute == Coins::Attr::quantity || attribute == Coins::Attr::value))
        o.changeCause_ = changeCause_;
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
    o->changeCause_ = changeCause_;
    deleted_.append(o);
}

bool ManagedObjectContext::hasChanges() const {
    return !inserted_.isEmpty() || !updated_.isEmpty() || !deleted_.isEmpty();
}

Error ManagedObjectContext::lastError() const {
    return db_->error();
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

Result<void> ManagedObjectContext::beginWriteBatch() {
    if (writeBatch_)
        return {};
    // A batch begun for reading may see an older state than the lock will.
    endReadBatch();
    if (!sqlite3_get_autocommit(db_->handle()))
        return {};
    SqliteStatement& begin = db_->cached(QStringLiteral("BEGIN IMMEDIATE"));
    if (begin.step() != SQLITE_DONE) {
        const Error failure = lastError();
        begin.reset();
        return failure;
    }
    begin.reset();
    readBatch_ = writeBatch_ = true;
    if (QCoreApplication::instance())
        batchEnd_->start();
    return {};
}

void ManagedObjectContext::endReadBatch() {
    if (!readBatch_)
        return;
    if (!held_.empty()) {
        if (Result<void> committed = commitHeld(); !committed.ok())
            heldFailure_ = committed.error();
        return;
    }
    readBatch_ = writeBatch_ = false;
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
    fillFromRow(*o, row);
    map.insert(rowId, o);
    return o;
}

void ManagedObjectContext::fillFromRow(ManagedObject& o, SqliteStatement& row) {
    const EntityDescription& e = *o.entity_;
    // Pictures are read again when next asked for.
    o.present_ = 0;
    o.dataLoaded_ = 0;
    o.utf8Texts_.clear();
    for (QByteArray& d : o.data_)
        d = QByteArray();
    int col = 1;
    for (std::size_t i = 0; i < e.attributes.size(); ++i) {
        const AttributeDescription& a = e.attributes[i];
        if (a.type == AttributeType::Data)
            continue;
        const bool has = !row.isNull(col);
        if (has)
            o.present_ |= 1u << i;
        if (a.type == AttributeType::Text)
            o.texts_[std::size_t(a.slot)] = has ? row.columnText(col) : QString();
        else if (a.type == AttributeType::Int16)
            o.numbers_[std::size_t(a.slot)] = has ? double(row.columnInt(col)) : 0;
        else
            o.numbers_[std::size_t(a.slot)] = has ? row.columnDouble(col) : 0;
        ++col;
    }
}

std::optional<Error> ManagedObjectContext::takeReadError() {
    return std::exchange(readError_, std::nullopt);
}

void ManagedObjectContext::setWaitWhenBusy(bool wait) {
    db_->setBusyTimeout(wait ? SqliteDatabase::BusyTimeoutMs : 0);
}
