#include "model/Entity.h"

#include "model/CoinAttributes.h"

int EntityDescription::indexOf(const QString& attributeName) const {
    return positions.value(attributeName, -1);
}

const AttributeDescription* EntityDescription::attribute(const QString& attributeName) const {
    const int i = indexOf(attributeName);
    return i < 0 ? nullptr : &attributes[std::size_t(i)];
}

namespace {

EntityDescription make(const char* name, int index,
                       std::initializer_list<std::pair<const char*, AttributeType>> attrs) {
    EntityDescription e;
    e.name = QLatin1String(name);
    e.index = index;
    for (const auto& [attrName, type] : attrs) {
        AttributeDescription a{QLatin1String(attrName), type};
        switch (type) {
        case AttributeType::Text:
            a.slot = e.textCount++;
            break;
        case AttributeType::Data:
            a.slot = e.dataCount++;
            break;
        default:
            a.slot = e.numberCount++;
            e.scalarMask |= 1u << e.attributes.size();
            break;
        }
        e.positions.insert(a.name, int(e.attributes.size()));
        e.attributes.push_back(a);
    }
    return e;
}

using T = AttributeType;

const EntityDescription kCoins = make("Coins", 0,
                                      {
#define PELVANE_ENTITY_ROW(name, Name, type, file, key, rule) {#name, T::type},
                                          PELVANE_COIN_ATTRIBUTES(PELVANE_ENTITY_ROW)
#undef PELVANE_ENTITY_ROW
                                      });
const EntityDescription kGrades = make("GradeNumbers", 1, {{"grade", T::Text}});
const EntityDescription kStrikes = make("StrikeCharacters", 2, {{"strike", T::Text}});
const EntityDescription kEdges = make("CoinEdge", 3, {{"edge", T::Text}});

} // namespace

namespace Model {

const std::vector<const EntityDescription*>& entities() {
    static const std::vector<const EntityDescription*> all{&kCoins, &kGrades, &kStrikes, &kEdges};
    return all;
}

const EntityDescription* entity(const QString& name) {
    for (auto* e : entities())
        if (e->name == name)
            return e;
    return nullptr;
}

const EntityDescription& coins() {
    return kCoins;
}
const EntityDescription& gradeNumbers() {
    return kGrades;
}
const EntityDescription& strikeCharacters() {
    return kStrikes;
}
const EntityDescription& coinEdge() {
    return kEdges;
}

} // namespace Model
