#include "model/StoreSchema.h"

#include "model/Entity.h"
#include "model/Journal.h"
#include "model/Originals.h"
#include "model/ValueHistory.h"

#include <QSet>

#include <sqlite3.h>

namespace StoreSchema {

QString missing(sqlite3* db) {
    auto columnsOf = [db](const QString& table) {
        QSet<QString> columns;
        sqlite3_stmt* stmt = nullptr;
        const QByteArray sql = QStringLiteral("PRAGMA table_info(\"%1\")").arg(table).toUtf8();
        if (sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr) == SQLITE_OK)
            while (sqlite3_step(stmt) == SQLITE_ROW)
                columns.insert(
                    QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 1))));
        sqlite3_finalize(stmt);
        return columns;
    };
    int version = 0;
    {
        sqlite3_stmt* stmt = nullptr;
        if (sqlite3_prepare_v2(db, "PRAGMA user_version", -1, &stmt, nullptr) == SQLITE_OK &&
            sqlite3_step(stmt) == SQLITE_ROW)
            version = sqlite3_column_int(stmt, 0);
        sqlite3_finalize(stmt);
    }
    if (version >= 4)
        for (const QString& table : ValueHistory::tables())
            if (columnsOf(table).isEmpty())
                return QStringLiteral("there is no table %1").arg(table);
    if (version >= 6)
        for (const QString& table : Journal::tables())
            if (columnsOf(table).isEmpty())
                return QStringLiteral("there is no table %1").arg(table);
    if (version >= 7)
        for (const QString& table : Originals::tables())
            if (columnsOf(table).isEmpty())
                return QStringLiteral("there is no table %1").arg(table);
    for (const EntityDescription* e : Model::entities()) {
        const QSet<QString> main = columnsOf(e->name);
        const QSet<QString> data = e->hasData() ? columnsOf(e->dataTable()) : QSet<QString>();
        if (main.isEmpty())
            return QStringLiteral("there is no table %1").arg(e->name);
        if (e->hasData() && data.isEmpty())
            return QStringLiteral("there is no table %1").arg(e->dataTable());
        for (const QString& table : {e->name, e->dataTable()}) {
            const bool pictures = table != e->name;
            if (pictures && !e->hasData())
                continue;
            if (!(pictures ? data : main).contains(QStringLiteral("pk")))
                return QStringLiteral("the table %1 has no column pk").arg(table);
        }
        for (const AttributeDescription& a : e->attributes) {
            const bool pictures = a.type == AttributeType::Data;
            if (!(pictures ? data : main).contains(a.name))
                return QStringLiteral("the table %1 has no column %2")
                    .arg(pictures ? e->dataTable() : e->name, a.name);
        }
    }
    return {};
}

} // namespace StoreSchema
