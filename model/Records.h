#pragma once
// The four record types: plain managed records with typed access to their attributes.
// Absent texts and pictures read back as null QString / QByteArray.
#include "model/CoinAttributes.h"
#include "model/ManagedObject.h"

// The C++ type of each kind of attribute, and how a record reads and writes it. An absent text
// or picture reads as null and is written from null as no value.
template <AttributeType> struct AttributeValue;
template <> struct AttributeValue<AttributeType::Text> {
    using Type = QString;
    static QString get(const ManagedObject& o, int i) { return o.value(i).toString(); }
    static void set(ManagedObject& o, int i, const QString& v) {
        o.setValue(i, v.isNull() ? QVariant() : QVariant(v));
    }
};
template <> struct AttributeValue<AttributeType::Data> {
    using Type = QByteArray;
    static QByteArray get(const ManagedObject& o, int i) { return o.value(i).toByteArray(); }
    static void set(ManagedObject& o, int i, const QByteArray& v) {
        o.setValue(i, v.isNull() ? QVariant() : QVariant(v));
    }
};
template <> struct AttributeValue<AttributeType::Int16> {
    using Type = qint16;
    static qint16 get(const ManagedObject& o, int i) { return qint16(o.value(i).toInt()); }
    static void set(ManagedObject& o, int i, qint16 v) { o.setValue(i, QVariant(int(v))); }
};
template <> struct AttributeValue<AttributeType::Double> {
    using Type = double;
    static double get(const ManagedObject& o, int i) { return o.value(i).toDouble(); }
    static void set(ManagedObject& o, int i, double v) { o.setValue(i, QVariant(v)); }
};
template <> struct AttributeValue<AttributeType::Float> {
    using Type = float;
    static float get(const ManagedObject& o, int i) { return o.value(i).toFloat(); }
    static void set(ManagedObject& o, int i, float v) { o.setValue(i, QVariant(v)); }
};

class Coins : public ManagedObject {
public:
    Coins()
        : ManagedObject(Model::coins()) {}
    static QString entityName() { return QStringLiteral("Coins"); }
    // Attribute positions in the model.
    struct Attr {
        enum : int {
#define PELVANE_ATTR(name, Name, type, file, key, rule) name,
            PELVANE_COIN_ATTRIBUTES(PELVANE_ATTR)
#undef PELVANE_ATTR
        };
    };
    using ManagedObject::setValue;
    using ManagedObject::value;
    // name() and setName(v) for every attribute, typed by the attribute's type.
#define PELVANE_ACCESSORS(name, Name, type, file, key, rule)                                       \
    AttributeValue<AttributeType::type>::Type name() const {                                       \
        return AttributeValue<AttributeType::type>::get(*this, Attr::name);                        \
    }                                                                                              \
    void set##Name(const AttributeValue<AttributeType::type>::Type& v) {                           \
        AttributeValue<AttributeType::type>::set(*this, Attr::name, v);                            \
    }
    PELVANE_COIN_ATTRIBUTES(PELVANE_ACCESSORS)
#undef PELVANE_ACCESSORS
};

class GradeNumbers : public ManagedObject {
public:
    GradeNumbers()
        : ManagedObject(Model::gradeNumbers()) {}
    static QString entityName() { return QStringLiteral("GradeNumbers"); }
    QString grade() const { return value(0).toString(); }
    void setGrade(const QString& v) { setValue(0, v.isNull() ? QVariant() : QVariant(v)); }
};

class StrikeCharacters : public ManagedObject {
public:
    StrikeCharacters()
        : ManagedObject(Model::strikeCharacters()) {}
    static QString entityName() { return QStringLiteral("StrikeCharacters"); }
    QString strike() const { return value(0).toString(); }
    void setStrike(const QString& v) { setValue(0, v.isNull() ? QVariant() : QVariant(v)); }
};

class CoinEdge : public ManagedObject {
public:
    CoinEdge()
        : ManagedObject(Model::coinEdge()) {}
    static QString entityName() { return QStringLiteral("CoinEdge"); }
    QString edge() const { return value(0).toString(); }
    void setEdge(const QString& v) { setValue(0, v.isNull() ? QVariant() : QVariant(v)); }
};

using CoinPtr = std::shared_ptr<Coins>;
