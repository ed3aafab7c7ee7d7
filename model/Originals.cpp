#include "model/Originals.h"

#include "model/Journal.h"
#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"
#include "model/StoreFiles.h"
#include "platform/core/Console.h"
#include "platform/core/Files.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <sqlite3.h>

namespace Originals {

namespace {
Error failure(SqliteDatabase& db, const QString& doing) {
    return Error::because(db.errorCode(), db.errorMessage(), doing);
}

Error plain(const QString& message) {
    Error e;
    e.message = message;
    return e;
}

QString storeOf(SqliteDatabase& db) {
    const char* name = sqlite3_db_filename(db.handle(), "main");
    return name ? QString::fromLocal8Bit(name) : QString();
}

QString linkKey(const QByteArray& picture) {
    return hashOf(picture);
}
} // namespace

QStringList schema() {
    // A picture's key is the SHA-256 of its 100 x 100 bytes; the original's size spares the
    // screens a decode to lay it out.
    return {
        QStringLiteral("CREATE TABLE OriginalLinks (picture TEXT PRIMARY KEY, original TEXT NOT "
                       "NULL, width INTEGER NOT NULL, height INTEGER NOT NULL) WITHOUT ROWID")};
}

QStringList tables() {
    return {QStringLiteral("OriginalLinks")};
}

QString folderFor(const QString& storePath) {
    return QFileInfo(storePath).absolutePath() + QStringLiteral("/Originals");
}

QString hashOf(const QByteArray& bytes) {
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

bool keepable(qint64 bytes, const QSize& size) {
    return bytes <= MaxBytes && size.isValid() && qint64(size.width()) * size.height() <= MaxPixels;
}

Result<void> put(const QString& folder, const QString& hash, const QByteArray& bytes) {
    const QString path = folder + QLatin1Char('/') + hash;
    if (!QDir().mkpath(folder))
        return StoreFiles::systemError(QStringLiteral("Cannot make the folder %1").arg(folder));
    // A file of that name holds these bytes already, unless it was damaged since.
    if (QFileInfo(path).size() == bytes.size() && read({hash, path, {}}).ok())
        return {};
    const QString part = StoreFiles::temporaryBeside(path);
    if (part.isEmpty())
        return StoreFiles::systemError(QStringLiteral("Cannot write %1").arg(path));
    QFile out(part);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(bytes) != bytes.size() ||
        !out.flush()) {
        const Error e = StoreFiles::systemError(QStringLiteral("Cannot write %1").arg(path));
        out.close();
        QFile::remove(part);
        return e;
    }
    out.close();
    if (Result<void> placed = StoreFiles::replace(part, path); !placed.ok()) {
        QFile::remove(part);
        return placed.error();
    }
    return {};
}

Result<Original> keep(ManagedObjectContext& context, const QByteArray& bytes, const QSize& size) {
    if (!keepable(bytes.size(), size))
        return plain(QStringLiteral("The photo is too large to keep (at most 64 megapixels and 50 "
                                    "MB)"));
    const QString folder = folderFor(storeOf(*context.database()));
    Original o{hashOf(bytes), {}, size};
    o.path = folder + QLatin1Char('/') + o.hash;
    if (Result<void> written = put(folder, o.hash, bytes); !written.ok())
        return written.error();
    return o;
}

Result<void> link(ManagedObjectContext& context, const QByteArray& picture,
                  const Original& original) {
    SqliteDatabase& db = *context.database();
    SqliteStatement& st = db.cached(
        QStringLiteral("INSERT OR REPLACE INTO main.OriginalLinks (picture, original, width, "
                       "height) VALUES (?1, ?2, ?3, ?4)"));
    st.bindText(1, linkKey(picture));
    st.bindText(2, original.hash);
    st.bindInt(3, original.size.width());
    st.bindInt(4, original.size.height());
    const bool done = st.step() == SQLITE_DONE;
    st.reset();
    if (!done)
        return failure(db, QStringLiteral("linking the original"));
    return {};
}

std::optional<Original> of(ManagedObjectContext& context, const QByteArray& picture) {
    if (picture.isEmpty())
        return std::nullopt;
    SqliteDatabase& db = *context.database();
    SqliteStatement& st = db.cached(QStringLiteral(
        "SELECT original, width, height FROM main.OriginalLinks WHERE picture = ?1"));
    st.bindText(1, linkKey(picture));
    std::optional<Original> out;
    if (st.step() == SQLITE_ROW) {
        Original o;
        o.hash = st.columnText(0);
        o.size = QSize(int(st.columnInt(1)), int(st.columnInt(2)));
        o.path = folderFor(storeOf(db)) + QLatin1Char('/') + o.hash;
        out = o;
    }
    st.reset();
    return out;
}

Result<QByteArray> read(const Original& original) {
    QFile file(original.path);
    if (!file.open(QIODevice::ReadOnly))
        return plain(QStringLiteral("The original photo %1 is missing").arg(original.path));
    if (file.size() > MaxBytes)
        return plain(QStringLiteral("The original photo %1 is damaged").arg(original.path));
    const QByteArray bytes = file.readAll();
    if (hashOf(bytes) != original.hash)
        return plain(QStringLiteral("The original photo %1 is damaged").arg(original.path));
    return bytes;
}

Result<int> addToBackup(sqlite3* copy, const QString& storePath) {
    const QString folder = folderFor(storePath);
    QStringList hashes;
    {
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(copy, "SELECT DISTINCT original FROM OriginalLinks", -1, &st,
                               nullptr) != SQLITE_OK) {
            sqlite3_finalize(st);
            return 0; // a store from before originals links none
        }
        while (sqlite3_step(st) == SQLITE_ROW)
            hashes << QString::fromLatin1(
                reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
        sqlite3_finalize(st);
    }
    if (hashes.isEmpty())
        return 0;
    if (sqlite3_exec(copy,
                     "CREATE TABLE BackupOriginals (hash TEXT PRIMARY KEY, bytes BLOB NOT NULL)",
                     nullptr, nullptr, nullptr) != SQLITE_OK)
        return Error::because(sqlite3_errcode(copy), QString::fromUtf8(sqlite3_errmsg(copy)),
                              QStringLiteral("adding the originals"));
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(copy, "INSERT INTO BackupOriginals (hash, bytes) VALUES (?1, ?2)", -1,
                       &insert, nullptr);
    int added = 0;
    for (const QString& hash : std::as_const(hashes)) {
        const Result<QByteArray> bytes = read({hash, folder + QLatin1Char('/') + hash, {}});
        if (!bytes.ok()) {
            Console::log(QStringLiteral("%1: the backup holds the 100 x 100 picture only")
                             .arg(bytes.error().message));
            continue;
        }
        const QByteArray key = hash.toLatin1();
        sqlite3_bind_text(insert, 1, key.constData(), int(key.size()), SQLITE_TRANSIENT);
        sqlite3_bind_blob(insert, 2, bytes.value().constData(), int(bytes.value().size()),
                          SQLITE_STATIC);
        const int rc = sqlite3_step(insert);
        sqlite3_reset(insert);
        if (rc != SQLITE_DONE) {
            const Error e =
                Error::because(sqlite3_errcode(copy), QString::fromUtf8(sqlite3_errmsg(copy)),
                               QStringLiteral("adding the originals"));
            sqlite3_finalize(insert);
            return e;
        }
        ++added;
    }
    sqlite3_finalize(insert);
    return added;
}

Result<int> takeFromBackup(sqlite3* copy, const QString& storePath) {
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(copy, "SELECT hash, bytes FROM BackupOriginals", -1, &st, nullptr) !=
        SQLITE_OK) {
        sqlite3_finalize(st);
        return 0; // a backup without originals
    }
    const QString folder = folderFor(storePath);
    int written = 0;
    while (sqlite3_step(st) == SQLITE_ROW) {
        const QString hash =
            QString::fromLatin1(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
        const QByteArray bytes(static_cast<const char*>(sqlite3_column_blob(st, 1)),
                               sqlite3_column_bytes(st, 1));
        // A photo whose bytes do not match its name is damaged: it stays out of the folder.
        if (hash.size() != 64 || hashOf(bytes) != hash) {
            Console::log(
                QStringLiteral("The original photo %1 in the backup is damaged").arg(hash));
            continue;
        }
        if (const Result<void> put_ = put(folder, hash, bytes); !put_.ok()) {
            sqlite3_finalize(st);
            return put_.error();
        }
        ++written;
    }
    sqlite3_finalize(st);
    // Out of the store again, and the space with them: snapshots copy the store whole.
    if (sqlite3_exec(copy, "DROP TABLE BackupOriginals", nullptr, nullptr, nullptr) != SQLITE_OK ||
        sqlite3_exec(copy, "VACUUM", nullptr, nullptr, nullptr) != SQLITE_OK)
        return Error::because(sqlite3_errcode(copy), QString::fromUtf8(sqlite3_errmsg(copy)),
                              QStringLiteral("taking the originals out of the backup"));
    return written;
}

Result<int> collect(ManagedObjectContext& context, const QString& storePath,
                    const QStringList& snapshots) {
    SqliteDatabase& db = *context.database();
    const QString folder = folderFor(storePath);
    const QStringList files = QDir(folder).entryList(QDir::Files);
    // The pictures still held: by the collection and by its journal (tbl 2 is the coins'
    // pictures; v0 and v1 the front and the back).
    QSet<QString> held;
    {
        SqliteStatement& links =
            db.cached(QStringLiteral("SELECT count(*) FROM main.OriginalLinks"));
        const qint64 count = links.step() == SQLITE_ROW ? links.columnInt(0) : 0;
        links.reset();
        if (count == 0 && files.isEmpty())
            return 0;
    }
    const int pictures = Journal::tableCode(Model::coins(), true);
    const QString sql =
        QStringLiteral("SELECT frontImage, backImage FROM main.Coins_pictures UNION ALL SELECT "
                       "v0, v1 FROM main.Journal WHERE tbl = %1")
            .arg(pictures);
    SqliteStatement& all = db.cached(sql);
    if (!all.isValid())
        return failure(db, QStringLiteral("reading the pictures"));
    int rc;
    while ((rc = all.step()) == SQLITE_ROW)
        for (int c = 0; c < 2; ++c)
            if (!all.isNull(c))
                held.insert(linkKey(all.columnBlob(c)));
    all.reset();
    if (rc != SQLITE_DONE)
        return failure(db, QStringLiteral("reading the pictures"));
    // Links of pictures no longer held go.
    QStringList gone;
    SqliteStatement& keys = db.cached(QStringLiteral("SELECT picture FROM main.OriginalLinks"));
    while (keys.step() == SQLITE_ROW)
        if (!held.contains(keys.columnText(0)))
            gone << keys.columnText(0);
    keys.reset();
    SqliteStatement& drop =
        db.cached(QStringLiteral("DELETE FROM main.OriginalLinks WHERE picture = ?1"));
    for (const QString& key : std::as_const(gone)) {
        drop.bindText(1, key);
        drop.step();
        drop.reset();
    }
    // The originals named by a link: of the store, and of every snapshot (as it was taken).
    QSet<QString> named;
    SqliteStatement& originals =
        db.cached(QStringLiteral("SELECT DISTINCT original FROM main.OriginalLinks"));
    while (originals.step() == SQLITE_ROW)
        named.insert(originals.columnText(0));
    originals.reset();
    for (const QString& snapshot : snapshots) {
        SqliteDatabase other;
        if (!other.open(snapshot, SqliteDatabase::Access::Inspect))
            return 0; // a snapshot that cannot be read might name any of them: none goes
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(other.handle(), "SELECT DISTINCT original FROM OriginalLinks", -1,
                               &st, nullptr) != SQLITE_OK) {
            sqlite3_finalize(st);
            continue; // a snapshot of a store from before originals names none
        }
        while (sqlite3_step(st) == SQLITE_ROW)
            named.insert(
                QString::fromLatin1(reinterpret_cast<const char*>(sqlite3_column_text(st, 0))));
        sqlite3_finalize(st);
    }
    int removed = 0;
    for (const QString& name : files) {
        // Only files named as originals are; a copy being written has a name of its own.
        if (name.size() != 64 || named.contains(name))
            continue;
        // One kept within the hour may be on its way to a link of a save not yet committed.
        const QFileInfo info(folder + QLatin1Char('/') + name);
        if (info.lastModified().secsTo(QDateTime::currentDateTime()) < 3600)
            continue;
        if (QFile::remove(folder + QLatin1Char('/') + name))
            ++removed;
    }
    return removed;
}

} // namespace Originals
