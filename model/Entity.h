#pragma once
// The data model: one attribute table per entity drives the schema, key access, predicates,
// sorting and the exchange file.
#include <QHash>
#include <QString>
#include <QtGlobal>
#include <vector>

enum class AttributeType { Text, Data, Int16, Double, Float };

struct AttributeDescription {
    QString name;
    AttributeType type;
    int slot = 0; // index into the object's storage of its kind (texts, data or numbers)
};

struct EntityDescription {
    QString name;
    std::vector<AttributeDescription> attributes;
    int textCount = 0;
    int dataCount = 0;
    int numberCount = 0;
    quint32 scalarMask = 0; // bit per attribute: a number, which always holds a value
    int index = 0;          // position in the model
    QHash<QString, int> positions;

    // -1 when the entity has no attribute of that name.
    int indexOf(const QString& attribute) const;
    const AttributeDescription* attribute(const QString& name) const;
    bool hasData() const { return dataCount > 0; }
    QString dataTable() const { return name + QLatin1String("_pictures"); }
};

namespace Model {
// The four entities, in model order: Coins, GradeNumbers, StrikeCharacters, CoinEdge.
const std::vector<const EntityDescription*>& entities();
// nullptr for an unknown name.
const EntityDescription* entity(const QString& name);
const EntityDescription& coins();
const EntityDescription& gradeNumbers();
const EntityDescription& strikeCharacters();
const EntityDescription& coinEdge();
} // namespace Model
