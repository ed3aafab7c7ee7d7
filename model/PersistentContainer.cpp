#include "model/PersistentContainer.h"

#include "model/Backup.h"
#include "model/CoinAttributes.h"
#include "model/ContextSql.h"
#include "model/Journal.h"
#include "model/Originals.h"
#include "model/Snapshots.h"
#include "model/Sqlite.h"
#include "model/StoreFiles.h"
#include "model/ValueHistory.h"
#include "platform/core/NativeFiles.h"
#include "platform/core/NativeNames.h"
#include "platform/core/ProtectedFiles.h"

#include <QDir>
#include <QStandardPaths>

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

namespace {
QString& directoryOverride() {
    static QString dir;
    return dir;
}

bool& inMemory() {
    static bool memory = false;
    return memory;
}

bool isMemory(const QString& path) {
    return path.startsWith(QLatin1String("file:")) && path.contains(QLatin1String("vfs=memdb"));
}

QString setApplicationId() {
    return QStringLiteral("PRAGMA application_id=%1").arg(StoreSchema::ApplicationId);
}

// Numbers are never absent: a column of numbers holds 0 where nothing was set.
QString columnType(AttributeType t) {
    const bool number = t != AttributeType::Text && t != AttributeType::Data;
    return ContextSql::sqlType(t) + (number ? QStringLiteral(" NOT NULL DEFAULT 0") : QString());
}

// From schema 1 to 2: stores written before numbers were kept as 0 hold NULL for every number
// never set, which an equality such as "year = 0" cannot find. Only those values change.
QStringList numbersNeverNull() {
    QStringList sql;
    for (const EntityDescription* e : Model::entities())
        for (const auto& a : e->attributes)
            if (e->scalarMask & (1u << e->indexOf(a.name)))
                sql << QStringLiteral("UPDATE \"%1\" SET \"%2\" = 0 WHERE \"%2\" IS NULL")
                           .arg(e->name, a.name);
    return sql;
}

// Tables and the indexes behind every query the screens make. Serial number and mint mark are
// only ever asked for together with denomination and year, which the first index finds; every
// index more is written again by each single-coin save.
// The columns of the index the import looks coins up by, in the order of its keys.
QString importKeyColumns() {
    QStringList columns;
    for (int k = 0; k < CoinAttributes::importKeyCount; ++k)
        columns << QLatin1String(CoinAttributes::importKey(k).name);
    return columns.join(QLatin1String(", "));
}

// A record's row is never numbered as one deleted before it (AUTOINCREMENT): the journal
// keeps deleted rows by their number, to put them back there.
QString tableStatement(const EntityDescription& e, bool pictures, const QString& name = {}) {
    QStringList cols{pictures ? QStringLiteral("pk INTEGER PRIMARY KEY")
                              : QStringLiteral("pk INTEGER PRIMARY KEY AUTOINCREMENT")};
    for (const auto& a : e.attributes)
        if ((a.type == AttributeType::Data) == pictures)
            cols << QStringLiteral("\"%1\" %2").arg(a.name, columnType(a.type));
    return QStringLiteral("CREATE TABLE \"%1\" (%2)")
        .arg(name.isEmpty() ? (pictures ? e.dataTable() : e.name) : name, cols.join(u','));
}

QStringList indexes() {
    return {QStringLiteral("CREATE INDEX Coins_denomination_year_mintMark ON Coins(denomination, "
                           "year, mintMark)"),
            QStringLiteral("CREATE INDEX Coins_year ON Coins(year)"),
            QStringLiteral("CREATE INDEX Coins_id ON Coins(id)"),
            QStringLiteral("CREATE INDEX Coins_import_keys ON Coins(%1)").arg(importKeyColumns()),
            QStringLiteral("CREATE INDEX GradeNumbers_grade ON GradeNumbers(grade)"),
            QStringLiteral("CREATE INDEX StrikeCharacters_strike ON StrikeCharacters(strike)"),
            QStringLiteral("CREATE INDEX CoinEdge_edge ON CoinEdge(edge)")};
}

QStringList schema() {
    QStringList sql;
    for (const EntityDescription* e : Model::entities()) {
        sql << tableStatement(*e, false);
        if (e->hasData())
            sql << tableStatement(*e, true);
    }
    return sql + indexes() + ValueHistory::schema() + Journal::schema() + Originals::schema();
}

// From schema 4: the journal's table, and the records' tables made again so that their
// rows are numbered as the journal needs; every row keeps its number.
QStringList journalBegins() {
    QStringList sql;
    for (const EntityDescription* e : Model::entities()) {
        const QString old = e->name + QStringLiteral("_before5");
        const QString cols = ContextSql::mainColumns(*e).join(u',');
        sql << QStringLiteral("ALTER TABLE \"%1\" RENAME TO \"%2\"").arg(e->name, old)
            << tableStatement(*e, false)
            << QStringLiteral("INSERT INTO \"%1\" (pk, %2) SELECT pk, %2 FROM \"%3\"")
                   .arg(e->name, cols, old)
            << QStringLiteral("DROP TABLE \"%1\"").arg(old);
    }
    return sql + indexes() + Journal::schema();
}

// A new collection is made whole beside its place and then moved there, so a program stopped
// while making it leaves no store rather than a part of one: an empty store file is refused
// as a lost collection. False when it could not be made; the caller goes on as for any store.
bool madeWhole(const QString& path) {
    const QString making = path + QStringLiteral(".new");
    auto removeMaking = [&] {
        for (const char* end : {"", "-journal", "-wal", "-shm"})
            ::unlink(Files::nativeName(making + QLatin1String(end)).constData());
    };
    removeMaking();
    {
        SqliteDatabase db;
        if (!db.open(making) || db.isReadOnly()) {
            db.close();
            removeMaking();
            return false;
        }
        // Written with a rollback journal, so that closing leaves the whole store in one file.
        const QStringList steps =
            QStringList{QStringLiteral("PRAGMA page_size=2048"), QStringLiteral("BEGIN IMMEDIATE")}
            << schema() << setApplicationId()
            << QStringLiteral("PRAGMA user_version=%1").arg(PersistentContainer::SchemaVersion)
            << QStringLiteral("COMMIT");
        for (const QString& statement : steps)
            if (!db.exec(statement)) {
                db.close();
                removeMaking();
                return false;
            }
        db.close();
    }
    if (::rename(Files::nativeName(making).constData(), Files::nativeName(path).constData()) != 0) {
        removeMaking();
        return false;
    }
    return true;
}
} // namespace

PersistentContainer::PersistentContainer(QString name)
    : name_(std::move(name)) {}

PersistentContainer::~PersistentContainer() {
    context_.reset();
    db_.reset();
}

void PersistentContainer::setDefaultDirectory(const QString& dir) {
    directoryOverride() = dir;
}

QString PersistentContainer::defaultDirectory() {
    if (!directoryOverride().isEmpty())
        return directoryOverride();
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

void PersistentContainer::setInMemory(bool memory) {
    inMemory() = memory;
}

QString PersistentContainer::storePath() const {
    if (!path_.isEmpty())
        return path_;
    if (inMemory())
        return QStringLiteral("file:/%1.sqlite?vfs=memdb").arg(name_);
    return QDir(defaultDirectory()).filePath(name_ + QLatin1String(".sqlite"));
}

void PersistentContainer::loadPersistentStores(const Completion& completion) {
    StoreDescription description{storePath()};
    Files::protectStore(description.path);
    Result<void> opened;
    if (!lock_.held()) {
        Result<StoreLock> lock =
            StoreLock::acquire(description.path, StoreLock::Reading, QStringLiteral("Pelvane"));
        if (lock.ok())
            lock_ = std::move(lock.value());
        else
            opened = lock.error();
    }
    if (opened.ok()) {
        // What killed backups and restores left half-written beside the store goes first.
        StoreFiles::sweepParts(Files::folderOf(Files::resolved(description.path)));
        StoreFiles::sweepParts(Snapshots::folder(description.path));
        opened = open(description.path, true);
    }
    if (!completion)
        return;
    if (opened.ok())
        return completion(description, std::nullopt);
    // Whatever kept it from opening, the error names the store it was about.
    Error error = opened.error();
    if (error.file.isEmpty())
        error.file = description.path;
    completion(description, error);
}

Result<void> PersistentContainer::loadStoreAt(const QString& path, bool snapshotFirst) {
    return open(path, snapshotFirst);
}

bool PersistentContainer::storeFileIntact() {
    if (!db_ || isMemory(path_))
        return true;
    struct stat now {};
    if (::stat(Files::nativeName(path_).constData(), &now) != 0 || quint64(now.st_dev) != device_ ||
        quint64(now.st_ino) != inode_ || qint64(now.st_size) < largestSize_)
        return false;
    largestSize_ = qint64(now.st_size);
    return true;
}

Result<Backup::Restored> PersistentContainer::restoreFrom(const QString& file) {
    const Result<std::shared_ptr<Backup::Candidate>> candidate =
        Backup::prepare(path_, file, &upgradeCopy);
    if (!candidate.ok())
        return candidate.error();
    return restoreFrom(*candidate.value());
}

Result<Backup::Restored> PersistentContainer::restoreFrom(Backup::Candidate& candidate) {
    context_->reset();
    db_->close();
    const Result<Backup::Restored> restored = Backup::restore(path_, candidate);
    // Opened again whatever came of it: the restored store, or the one that stayed.
    if (const auto error = open(path_, false); !error.ok())
        return error.error();
    if (restored.ok())
        if (const Result<void> noted = journalRestore(restored.value(), candidate.file());
            !noted.ok())
            std::fprintf(stderr, "The restore cannot be undone: %s\n",
                         qPrintable(noted.error().description()));
    return restored;
}

Result<void> PersistentContainer::journalRestore(const Backup::Restored& restored,
                                                 const QString& file) {
    // A damaged collection was moved aside, not kept: there is nothing to go back to.
    if (restored.damaged || restored.snapshot.isEmpty() || !context_)
        return {};
    return Journal::recordRestore(*context_, restored.snapshot,
                                  file.mid(file.lastIndexOf(QLatin1Char('/')) + 1));
}

Result<void> PersistentContainer::upgradeCopy(const QString& path) {
    PersistentContainer copy(QStringLiteral("Pelvane"));
    return copy.loadStoreAt(path, false);
}

void PersistentContainer::readWithoutMemoryMap() {
    if (db_)
        db_->exec(QStringLiteral("PRAGMA mmap_size=0"));
}

Result<void> PersistentContainer::open(const QString& path, bool snapshotFirst) {
    path_ = path;
    if (isMemory(path)) {
        db_ = std::make_unique<SqliteDatabase>();
        if (!db_->open(path))
            return Error::because(db_->errorCode(), db_->errorMessage());
        db_->exec(QStringLiteral("PRAGMA journal_mode=MEMORY"));
        SqliteStatement version(db_->handle(), QStringLiteral("PRAGMA user_version"));
        const bool fresh = version.step() == SQLITE_ROW && version.columnInt(0) == 0;
        version = SqliteStatement();
        if (fresh) {
            const QStringList steps =
                schema() << QStringLiteral("PRAGMA user_version=%1").arg(SchemaVersion);
            for (const QString& statement : steps)
                db_->exec(statement);
        }
        for (const QString& statement : ValueHistory::connection() + Journal::connection())
            db_->exec(statement);
        context_ = std::make_unique<ManagedObjectContext>(db_.get());
        context_->attachJournal();
        return {};
    }
    auto failure = [&](int code, const QString& message) {
        Error e = Error::because(code, message);
        e.file = path;
        // The file is left as it is for recovery: never deleted or overwritten. A context
        // already handed out keeps its (closed) connection.
        if (context_)
            db_->close();
        else
            db_.reset();
        return e;
    };
    Files::makePath(Files::folderOf(path));
    // An empty file where a store was (a disk that lost it) is not taken for a new store:
    // filling it with an empty collection would let the next export replace the last backup.
    {
        const Files::Status store = Files::status(path);
        const bool log = Files::status(path + QLatin1String("-wal")).exists;
        if (store.isFile && store.size == 0 && !log)
            return failure(SQLITE_NOTADB, QStringLiteral("the store file is empty"));
        if (!store.exists && !log)
            madeWhole(path);
    }
    if (!db_)
        db_ = std::make_unique<SqliteDatabase>();
    if (!db_->open(path))
        return failure(db_->errorCode(), db_->errorMessage());
    struct stat file {};
    if (::stat(Files::nativeName(path).constData(), &file) == 0) {
        device_ = quint64(file.st_dev);
        inode_ = quint64(file.st_ino);
        largestSize_ = qint64(file.st_size);
    }
    // A table or column missing would make every later statement on it fail, or worse: SQLite
    // reads an unknown quoted column name as a text.
    auto schemaProblem = [&]() -> std::optional<Error> {
        if (const QString missing = StoreSchema::missing(db_->handle()); !missing.isEmpty())
            return failure(ErrorCode::StoreIncomplete,
                           QStringLiteral("The store does not hold what this Pelvane "
                                          "needs: %1")
                               .arg(missing));
        return {};
    };

    SqliteStatement version(db_->handle(), QStringLiteral("PRAGMA user_version"));
    if (!version.isValid() || version.step() != SQLITE_ROW)
        return failure(db_->errorCode(), db_->errorMessage());
    const qint64 current = version.columnInt(0);
    version = SqliteStatement();
    if (current > SchemaVersion)
        return failure(ErrorCode::StoreIncompatible,
                       QStringLiteral("The store was written by a newer Pelvane (store version "
                                      "%1; this one reads up to %2)")
                           .arg(current)
                           .arg(SchemaVersion));
    if (db_->isReadOnly()) {
        // A collection on a read-only medium can still be read and exported as it is; one
        // that holds nothing yet cannot be made there.
        if (current == 0)
            return failure(SQLITE_READONLY, QStringLiteral("attempt to write a readonly database"));
        if (auto problem = schemaProblem())
            return *problem;
        db_->exec(QStringLiteral("PRAGMA mmap_size=1073741824"));
        if (!context_)
            context_ = std::make_unique<ManagedObjectContext>(db_.get());
        return {};
    }
    // Small pages keep the bytes each single-coin commit writes low: a commit rewrites every
    // index page it touches.
    if (current == 0)
        db_->exec(QStringLiteral("PRAGMA page_size=2048"));
    if (!db_->exec(QStringLiteral("PRAGMA journal_mode=WAL")) ||
        !db_->exec(QStringLiteral("PRAGMA synchronous=NORMAL")) ||
        // Every save is its own commit; checkpointing less often spares rewriting the same
        // index pages over and over when coins are saved one at a time.
        !db_->exec(QStringLiteral("PRAGMA wal_autocheckpoint=16384")) ||
        // Reading through a memory map spares a system call and a copy per page.
        !db_->exec(QStringLiteral("PRAGMA mmap_size=1073741824")))
        return failure(db_->errorCode(), db_->errorMessage());
    if (current > 0)
        if (auto problem = schemaProblem())
            return *problem;
    if (current > 0 && current < SchemaVersion && snapshotFirst) {
        // Kept as it was before it changes; a snapshot that cannot be written stops nothing.
        const Result<QString> kept = Snapshots::take(path, QStringLiteral("before-upgrade"));
        if (!kept.ok())
            std::fprintf(stderr, "Could not keep a snapshot before the upgrade: %s\n",
                         qPrintable(kept.error().message));
    }
    if (current < SchemaVersion) {
        // A new store gets the whole schema, an older one the steps it lacks; either way in
        // one transaction, so a failure leaves the file as it was.
        QStringList steps = current == 0 ? schema() : QStringList();
        if (current == 1)
            steps << numbersNeverNull();
        // The history begins with the collection as it is now.
        if (current > 0 && current < 4)
            steps << ValueHistory::schema() << ValueHistory::baseline(ValueHistory::now())
                  << ValueHistory::fold();
        if (current > 0 && current < 5)
            steps << journalBegins();
        if (current == 5)
            steps << Journal::fromSeparateTables();
        if (current > 0 && current < 7)
            steps << Originals::schema();
        steps << setApplicationId();
        if (!db_->exec(QStringLiteral("BEGIN IMMEDIATE")))
            return failure(db_->errorCode(), db_->errorMessage());
        for (const QString& statement :
             steps + QStringList{QStringLiteral("PRAGMA user_version=%1").arg(SchemaVersion)})
            if (!db_->exec(statement)) {
                const int code = db_->errorCode();
                const QString message = db_->errorMessage();
                db_->exec(QStringLiteral("ROLLBACK"));
                return failure(code, message);
            }
        if (!db_->exec(QStringLiteral("COMMIT")))
            return failure(db_->errorCode(), db_->errorMessage());
    }
    for (const QString& statement : ValueHistory::connection() + Journal::connection())
        if (!db_->exec(statement))
            return failure(db_->errorCode(), db_->errorMessage());
    if (!context_)
        context_ = std::make_unique<ManagedObjectContext>(db_.get());
    context_->attachJournal();
    return {};
}
