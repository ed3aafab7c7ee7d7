#pragma once
// The SQL the context runs, per entity: column lists, the prepared statements' texts and the
// checks every part of the context shares. Private to the model.
#include "model/Entity.h"

#include <QString>
#include <QStringList>

namespace ContextSql {
QString quoted(const QString& name);
const QStringList& mainColumns(const EntityDescription& e);
const QStringList& dataColumns(const EntityDescription& e);
struct WriteSql {
    QString select, selectKeys, selectRow, insert, insertData, update, remove, removeData, loadData;
};
const WriteSql& writeSql(const EntityDescription& e);
// The SQL type a column of the attribute's kind holds.
QString sqlType(AttributeType type);
// Bit per data attribute.
quint32 dataMask(const EntityDescription& e);
// Fatal for an unknown entity name.
const EntityDescription& checkedEntity(const QString& name);
} // namespace ContextSql
