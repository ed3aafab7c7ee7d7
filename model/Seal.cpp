#include "model/Seal.h"

#include "model/StoreSchema.h"

#include <QList>
#include <QString>

#include <openssl/evp.h>
#include <sqlite3.h>

#include <memory>

namespace Seal {

namespace {
Error storeError(sqlite3* db, const QString& doing) {
    return Error::because(sqlite3_extended_errcode(db), QString::fromUtf8(sqlite3_errmsg(db)),
                          doing);
}

class Sha256 {
public:
    Sha256()
        : ctx_(EVP_MD_CTX_new(), &EVP_MD_CTX_free) {
        EVP_DigestInit_ex(ctx_.get(), EVP_sha256(), nullptr);
    }
    void add(const void* data, size_t size) {
        if (size > 0)
            EVP_DigestUpdate(ctx_.get(), data, size);
    }
    void add(qint64 n) { add(&n, sizeof n); }
    void addBytes(const void* data, qint64 size) {
        add(size);
        add(data, size_t(size));
    }
    QByteArray result() {
        unsigned char out[EVP_MAX_MD_SIZE];
        unsigned int n = 0;
        EVP_DigestFinal_ex(ctx_.get(), out, &n);
        return QByteArray(reinterpret_cast<const char*>(out), int(n)).toHex();
    }

private:
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> ctx_;
};

struct Statement {
    sqlite3_stmt* stmt = nullptr;
    Statement(sqlite3* db, const QByteArray& sql) {
        if (!sql.isEmpty())
            sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr);
    }
    ~Statement() { sqlite3_finalize(stmt); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
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
    for (const QByteArray& table : tables) {
        QByteArray quoted = table;
        quoted.replace('"', "\"\"");
        // Row by row in key order: the rowid, or the primary key of a table without one, which
        // is the order its rows are stored in.
        Statement byRowid(db, "SELECT * FROM \"" + quoted + "\" ORDER BY rowid");
        Statement rows(db, byRowid.stmt ? QByteArray() : "SELECT * FROM \"" + quoted + "\"");
        if (byRowid.stmt)
            std::swap(rows.stmt, byRowid.stmt);
        if (!rows.stmt)
            return storeError(db, QStringLiteral("reading the table %1").arg(QString(table)));
        const int columns = sqlite3_column_count(rows.stmt);
        hash.addBytes(table.constData(), table.size());
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
            return storeError(db, QStringLiteral("reading the table %1").arg(QString(table)));
    }
    return hash.result();
}

Result<void> seal(sqlite3* db) {
    const Result<QByteArray> sum = digest(db);
    if (!sum.ok())
        return sum.error();
    const QByteArray sql = "BEGIN;"
                           "DROP TABLE IF EXISTS Seal;"
                           "CREATE TABLE Seal (sha256 TEXT NOT NULL);"
                           "INSERT INTO Seal VALUES ('" +
                           sum.value() + "');" +
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
