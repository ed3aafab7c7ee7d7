#include "model/Seal.h"

#include "model/StoreSchema.h"

#include <QList>
#include <QString>

#include <openssl/evp.h>
#include <sqlite3.h>

#include <QThread>

#include <atomic>
#include <cstring>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace Seal {

namespace {
Error storeError(sqlite3* db, const QString& doing) {
    return Error::because(sqlite3_extended_errcode(db), QString::fromUtf8(sqlite3_errmsg(db)),
                          doing);
}

// Small values are gathered and handed over a few kilobytes at a time: a call per value would
// cost more than hashing it.
class Sha256 {
public:
    Sha256()
        : ctx_(EVP_MD_CTX_new(), &EVP_MD_CTX_free) {
        EVP_DigestInit_ex(ctx_.get(), EVP_sha256(), nullptr);
    }
    void add(const void* data, size_t size) {
        if (size > sizeof pending_ - used_) {
            flush();
            if (size >= sizeof pending_ / 2) {
                EVP_DigestUpdate(ctx_.get(), data, size);
                return;
            }
        }
        std::memcpy(pending_ + used_, data, size);
        used_ += size;
    }
    void add(qint64 n) { add(&n, sizeof n); }
    void addBytes(const void* data, qint64 size) {
        add(size);
        add(data, size_t(size));
    }
    QByteArray result() {
        flush();
        unsigned char out[EVP_MAX_MD_SIZE];
        unsigned int n = 0;
        EVP_DigestFinal_ex(ctx_.get(), out, &n);
        return QByteArray(reinterpret_cast<const char*>(out), int(n)).toHex();
    }

private:
    void flush() {
        if (used_ > 0)
            EVP_DigestUpdate(ctx_.get(), pending_, used_);
        used_ = 0;
    }
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> ctx_;
    char pending_[64 * 1024];
    size_t used_ = 0;
};

struct Statement {
    sqlite3_stmt* stmt = nullptr;
    Statement(sqlite3* db, const QByteArray& sql) {
        sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr);
    }
    ~Statement() { sqlite3_finalize(stmt); }
    Statement(const Statement&) = delete;
    Statement& operator=(Statement&& other) noexcept {
        std::swap(stmt, other.stmt);
        return *this;
    }
};

bool hasSealTable(sqlite3* db) {
    Statement s(db, "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = 'Seal'");
    return s.stmt && sqlite3_step(s.stmt) == SQLITE_ROW;
}

std::optional<int> applicationId(sqlite3* db) {
    Statement s(db, "PRAGMA application_id");
    if (!s.stmt || sqlite3_step(s.stmt) != SQLITE_ROW)
        return {};
    return sqlite3_column_int(s.stmt, 0);
}
} // namespace

namespace {
// One part of the content: a table, or a range of its rows by rowid.
struct Part {
    QByteArray table;
    std::optional<qint64> from, to; // rowid >= from, rowid < to
};

// The rows of one part, each value with its type and length.
Result<QByteArray> digestOf(sqlite3* db, const Part& part) {
    Sha256 hash;
    QByteArray quoted = part.table;
    quoted.replace('"', "\"\"");
    const QByteArray select = "SELECT * FROM \"" + quoted + "\"";
    // Row by row in key order: the rowid, or the primary key of a table without one, which is
    // the order its rows are stored in.
    const QByteArray range = part.from && part.to ? " WHERE rowid >= ?1 AND rowid < ?2"
                             : part.from          ? " WHERE rowid >= ?1"
                             : part.to            ? " WHERE rowid < ?2"
                                                  : "";
    Statement rows(db, select + range + " ORDER BY rowid");
    if (!rows.stmt && range.isEmpty())
        rows = Statement(db, select);
    if (!rows.stmt)
        return storeError(db, QStringLiteral("reading the table %1").arg(QString(part.table)));
    if (part.from)
        sqlite3_bind_int64(rows.stmt, 1, *part.from);
    if (part.to)
        sqlite3_bind_int64(rows.stmt, 2, *part.to);
    const int columns = sqlite3_column_count(rows.stmt);
    int rc = SQLITE_ROW;
    while ((rc = sqlite3_step(rows.stmt)) == SQLITE_ROW) {
        for (int c = 0; c < columns; ++c) {
            const int type = sqlite3_column_type(rows.stmt, c);
            hash.add(qint64(type));
            switch (type) {
            case SQLITE_INTEGER:
                hash.add(sqlite3_column_int64(rows.stmt, c));
                break;
            case SQLITE_FLOAT: {
                const double v = sqlite3_column_double(rows.stmt, c);
                hash.add(&v, sizeof v);
                break;
            }
            case SQLITE_TEXT:
            case SQLITE_BLOB: {
                const void* bytes = sqlite3_column_blob(rows.stmt, c);
                hash.addBytes(bytes, sqlite3_column_bytes(rows.stmt, c));
                break;
            }
            default:
                break;
            }
        }
    }
    if (rc != SQLITE_DONE)
        return storeError(db, QStringLiteral("reading the table %1").arg(QString(part.table)));
    return hash.result();
}

// A large table in a few ranges of about as many rows each, cut where its rows are: the same
// content always gives the same cuts.
QList<Part> partsOf(sqlite3* db, const QByteArray& table, int pieces) {
    QByteArray quoted = table;
    quoted.replace('"', "\"\"");
    qint64 rows = 0;
    {
        Statement count(db, "SELECT count(*) FROM \"" + quoted + "\"");
        if (count.stmt && sqlite3_step(count.stmt) == SQLITE_ROW)
            rows = sqlite3_column_int64(count.stmt, 0);
    }
    Statement cut(db, "SELECT rowid FROM \"" + quoted + "\" ORDER BY rowid LIMIT 1 OFFSET ?1");
    if (rows < 4096 || !cut.stmt)
        return {Part{table, {}, {}}};
    QList<Part> parts;
    std::optional<qint64> from;
    for (int i = 1; i < pieces; ++i) {
        sqlite3_reset(cut.stmt);
        sqlite3_bind_int64(cut.stmt, 1, rows * i / pieces);
        if (sqlite3_step(cut.stmt) != SQLITE_ROW)
            return {Part{table, {}, {}}};
        const qint64 at = sqlite3_column_int64(cut.stmt, 0);
        parts << Part{table, from, at};
        from = at;
    }
    parts << Part{table, from, {}};
    return parts;
}
} // namespace

Result<QByteArray> digest(sqlite3* db) {
    Sha256 hash;
    QList<QByteArray> tables;
    {
        Statement schema(db, "SELECT type, name, tbl_name, coalesce(sql, '') FROM sqlite_master "
                             "WHERE name <> 'Seal' AND name NOT LIKE 'sqlite_%' ORDER BY name");
        if (!schema.stmt)
            return storeError(db, QStringLiteral("reading the schema"));
        int rc = SQLITE_ROW;
        while ((rc = sqlite3_step(schema.stmt)) == SQLITE_ROW) {
            for (int c = 0; c < 4; ++c)
                hash.addBytes(sqlite3_column_text(schema.stmt, c),
                              sqlite3_column_bytes(schema.stmt, c));
            if (QByteArrayView(
                    reinterpret_cast<const char*>(sqlite3_column_text(schema.stmt, 0))) == "table")
                tables << QByteArray(
                    reinterpret_cast<const char*>(sqlite3_column_text(schema.stmt, 1)));
        }
        if (rc != SQLITE_DONE)
            return storeError(db, QStringLiteral("reading the schema"));
    }
    // Hashing a large collection takes longer than reading it: its parts are hashed on every
    // core, each worker through a read-only connection of its own, and their checksums hashed
    // in order.
    const int workers = std::max(1, std::min(4, QThread::idealThreadCount()));
    QList<Part> parts;
    for (const QByteArray& table : tables)
        parts << partsOf(db, table, workers * 2);
    QList<std::optional<Result<QByteArray>>> sums(parts.size());
    std::atomic<qsizetype> next = 0;
    auto work = [&](sqlite3* connection) {
        for (qsizetype i; (i = next++) < parts.size();)
            sums[i] = digestOf(connection, parts[i]);
    };
    const char* file = sqlite3_db_filename(db, "main");
    std::vector<std::thread> helpers;
    std::vector<sqlite3*> connections;
    for (int w = 1; w < workers && file && *file && parts.size() > 1; ++w) {
        sqlite3* other = nullptr;
        if (sqlite3_open_v2(file, &other, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr) !=
            SQLITE_OK) {
            sqlite3_close(other);
            break;
        }
        sqlite3_exec(other, "PRAGMA mmap_size=1073741824", nullptr, nullptr, nullptr);
        connections.push_back(other);
        helpers.emplace_back(work, other);
    }
    sqlite3_exec(db, "PRAGMA mmap_size=1073741824", nullptr, nullptr, nullptr);
    work(db);
    for (std::thread& t : helpers)
        t.join();
    for (sqlite3* c : connections)
        sqlite3_close(c);
    for (qsizetype i = 0; i < parts.size(); ++i) {
        if (!sums[i]->ok())
            return sums[i]->error();
        hash.addBytes(parts[i].table.constData(), parts[i].table.size());
        hash.add(sums[i]->value().constData(), size_t(sums[i]->value().size()));
    }
    return hash.result();
}

Result<void> seal(sqlite3* db) {
    const Result<QByteArray> sum = digest(db);
    if (!sum.ok())
        return sum.error();
    return seal(db, sum.value());
}

Result<void> seal(sqlite3* db, const QByteArray& sum) {
    const QByteArray sql = "BEGIN;"
                           "DROP TABLE IF EXISTS Seal;"
                           "CREATE TABLE Seal (sha256 TEXT NOT NULL);"
                           "INSERT INTO Seal VALUES ('" +
                           sum + "');" +
                           "PRAGMA application_id=" + QByteArray::number(SealedApplicationId) +
                           ";COMMIT;";
    if (sqlite3_exec(db, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        const Error e = storeError(db, QStringLiteral("sealing the copy"));
        sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
        return e;
    }
    return {};
}

Result<Verdict> verify(sqlite3* db) {
    const std::optional<int> id = applicationId(db);
    if (!id)
        return storeError(db, QStringLiteral("reading the header"));
    const bool sealedId = *id == SealedApplicationId;
    const bool table = hasSealTable(db);
    if (!sealedId && !table)
        return Verdict::Unsealed;
    if (sealedId != table)
        return Error::because(ErrorCode::Corrupt,
                              QStringLiteral("its checksum is missing: the file was changed "
                                             "after it was written"));
    QByteArray kept;
    {
        Statement s(db, "SELECT sha256 FROM Seal");
        if (!s.stmt || sqlite3_step(s.stmt) != SQLITE_ROW)
            return Error::because(ErrorCode::Corrupt,
                                  QStringLiteral("its checksum cannot be read: %1")
                                      .arg(QString::fromUtf8(sqlite3_errmsg(db))));
        kept = QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(s.stmt, 0)));
    }
    const Result<QByteArray> sum = digest(db);
    if (!sum.ok())
        return sum.error();
    if (sum.value() != kept)
        return Error::because(ErrorCode::Corrupt,
                              QStringLiteral("its content does not match its checksum: the "
                                             "file was changed after it was written"));
    return Verdict::Whole;
}

Result<void> unseal(sqlite3* db) {
    const QByteArray sql = "BEGIN;DROP TABLE IF EXISTS Seal;PRAGMA application_id=" +
                           QByteArray::number(StoreSchema::ApplicationId) + ";COMMIT;";
    if (sqlite3_exec(db, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        const Error e = storeError(db, QStringLiteral("opening the copy"));
        sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
        return e;
    }
    return {};
}

} // namespace Seal
