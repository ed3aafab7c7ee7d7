#include "model/ContextSql.h"

#include "platform/core/Fatal.h"

#include <vector>

namespace ContextSql {

QString quoted(const QString& name) {
    return QLatin1Char('"') + name + QLatin1Char('"');
}

static QStringList columnsOf(const EntityDescription& e, bool data) {
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

QString sqlType(AttributeType type) {
    switch (type) {
    case AttributeType::Text:
        return QStringLiteral("TEXT");
    case AttributeType::Data:
        return QStringLiteral("BLOB");
    case AttributeType::Int16:
        return QStringLiteral("INTEGER");
    default:
        return QStringLiteral("REAL");
    }
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
        fatalError(QStringLiteral("A fetch names no entity of the model (\"%1\")").arg(name),
                   "Pelvane/ManagedObjectContext", __LINE__);
    return *e;
}

} // namespace ContextSql
