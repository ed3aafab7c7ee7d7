#include "model/ManagedObject.h"

#include "model/ManagedObjectContext.h"
#include "platform/core/Fatal.h"

#include <QAnyStringView>

ManagedObject::ManagedObject(const EntityDescription& entity)
    : entity_(&entity)
    , texts_(std::size_t(entity.textCount))
    , data_(std::size_t(entity.dataCount))
    , numbers_(std::size_t(entity.numberCount), 0.0)
    , present_(entity.scalarMask) {}

static int attributeIndex(const EntityDescription& e, const QString& key) {
    const int i = e.indexOf(key);
    if (i < 0)
        fatalError(QStringLiteral("The entity %1 has no attribute %2").arg(e.name, key),
                   "Pelvane/ManagedObject", __LINE__);
    return i;
}

ManagedObject::~ManagedObject() {
    if (context_ && rowId_)
        context_->forget(*entity_, rowId_);
}

QVariant ManagedObject::value(const QString& key) const {
    return value(attributeIndex(*entity_, key));
}

void ManagedObject::setValue(const QString& key, const QVariant& v) {
    setValue(attributeIndex(*entity_, key), v);
}

bool ManagedObject::hasValue(int attribute) const {
    if (entity_->attributes[std::size_t(attribute)].type == AttributeType::Data)
        loadDataIfNeeded();
    return present_ & (1u << attribute);
}

QVariant ManagedObject::value(int attribute) const {
    const AttributeDescription& a = entity_->attributes[std::size_t(attribute)];
    const bool present = present_ & (1u << attribute);
    const auto slot = std::size_t(a.slot);
    switch (a.type) {
    case AttributeType::Text:
        if (!present)
            return QVariant();
        if (const QByteArray* bytes = utf8Text(slot))
            return QVariant(QString::fromUtf8(*bytes));
        return QVariant(texts_[slot]);
    case AttributeType::Data:
        loadDataIfNeeded();
        return (present_ & (1u << attribute)) ? QVariant(data_[slot]) : QVariant();
    case AttributeType::Int16:
        return QVariant(int(qint16(numbers_[slot])));
    case AttributeType::Double:
        return QVariant(numbers_[slot]);
    case AttributeType::Float:
        return QVariant(float(numbers_[slot]));
    }
    return QVariant();
}

void ManagedObject::setValue(int attribute, const QVariant& v) {
    const AttributeDescription& a = entity_->attributes[std::size_t(attribute)];
    const quint32 bit = 1u << attribute;
    const auto slot = std::size_t(a.slot);
    // A null QString is Qt's way of saying "no text"; it clears the attribute like nil would.
    // A number given no value becomes 0: numbers are never absent, so that "year = 0" finds
    // every coin whose year was never set.
    const bool isNumber = entity_->scalarMask & bit;
    const bool absent =
        !isNumber && (!v.isValid() || (v.typeId() == QMetaType::QString && v.toString().isNull()) ||
                      (v.typeId() == QMetaType::QByteArray && v.toByteArray().isNull()));
    const bool had = present_ & bit;
    const QVariant before = (a.type == AttributeType::Data || !had) ? QVariant() : value(attribute);
    if (absent)
        present_ &= ~bit;
    else
        present_ |= bit;
    switch (a.type) {
    case AttributeType::Text:
        dropUtf8Text(slot);
        texts_[slot] = absent ? QString() : v.toString();
        break;
    case AttributeType::Data:
        data_[slot] = absent ? QByteArray() : v.toByteArray();
        dataLoaded_ |= bit;
        break;
    case AttributeType::Int16:
        numbers_[slot] = double(qint16(v.toInt()));
        break;
    case AttributeType::Double:
        numbers_[slot] = v.toDouble();
        break;
    case AttributeType::Float:
        numbers_[slot] = double(v.toFloat());
        break;
    }
    // Writing back an equal value is no change: the import rewrites every field of the coins
    // it matches, and unchanged keys keep the store's indexes usable for later fetches.
    if (a.type != AttributeType::Data && had == !absent && (absent || before == value(attribute)))
        return;
    if (context_)
        context_->noteChange(*this, attribute);
}

void ManagedObject::setText(int attribute, const QByteArray& utf8) {
    if (utf8.isEmpty()) {
        setValue(attribute, QVariant());
        return;
    }
    const quint32 bit = 1u << attribute;
    const auto slot = std::size_t(entity_->attributes[std::size_t(attribute)].slot);
    // Compared where they lie: the import rewrites every field of the coins it matches, and
    // an unchanged text is no change.
    if (present_ & bit) {
        const QByteArray* held = utf8Text(slot);
        if (held ? *held == utf8 : QAnyStringView::equal(texts_[slot], QUtf8StringView(utf8)))
            return;
    }
    present_ |= bit;
    texts_[slot] = QString();
    dropUtf8Text(slot);
    utf8Texts_.emplace_back(slot, utf8);
    if (context_)
        context_->noteChange(*this, attribute);
}

const QByteArray* ManagedObject::textBytes(int attribute) const {
    const AttributeDescription& a = entity_->attributes[std::size_t(attribute)];
    if (a.type != AttributeType::Text || !(present_ & (1u << attribute)))
        return nullptr;
    return utf8Text(std::size_t(a.slot));
}

const QByteArray* ManagedObject::utf8Text(std::size_t slot) const {
    for (const auto& [at, bytes] : utf8Texts_)
        if (at == slot)
            return &bytes;
    return nullptr;
}

void ManagedObject::dropUtf8Text(std::size_t slot) {
    std::erase_if(utf8Texts_, [slot](const auto& entry) { return entry.first == slot; });
}

void ManagedObject::releaseData() {
    if (!entity_->hasData() || rowId_ == 0 || state_ == State::Inserted || isDeleted())
        return;
    for (std::size_t i = 0; i < entity_->attributes.size(); ++i) {
        const quint32 bit = 1u << i;
        if (entity_->attributes[i].type != AttributeType::Data || (dirty_ & bit))
            continue;
        data_[std::size_t(entity_->attributes[i].slot)] = QByteArray();
        dataLoaded_ &= ~bit;
    }
}

void ManagedObject::loadDataIfNeeded() const {
    if (!entity_->hasData() || rowId_ == 0 || !context_)
        return;
    quint32 all = 0;
    for (std::size_t i = 0; i < entity_->attributes.size(); ++i)
        if (entity_->attributes[i].type == AttributeType::Data)
            all |= 1u << i;
    if ((dataLoaded_ & all) != all)
        context_->loadData(const_cast<ManagedObject&>(*this));
}
