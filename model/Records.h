#pragma once
// The four record types: plain managed records with typed access to their attributes.
// Absent texts and pictures read back as null QString / QByteArray.
#include "model/ManagedObject.h"

class Coins : public ManagedObject {
public:
    Coins()
        : ManagedObject(Model::coins()) {}
    static QString entityName() { return QStringLiteral("Coins"); }
    // Attribute positions in the model.
    struct Attr {
        static constexpr int backImage = 0;
        static constexpr int country = 1;
        static constexpr int denomination = 2;
        static constexpr int descrip = 3;
        static constexpr int designer = 4;
        static constexpr int diameter = 5;
        static constexpr int edge = 6;
        static constexpr int frontImage = 7;
        static constexpr int gradeNumber = 8;
        static constexpr int id = 9;
        static constexpr int mintLocation = 10;
        static constexpr int mintMark = 11;
        static constexpr int notes = 12;
        static constexpr int period = 13;
        static constexpr int quantity = 14;
        static constexpr int serialNumber = 15;
        static constexpr int strikeCharacter = 16;
        static constexpr int thickness = 17;
        static constexpr int totalValue = 18;
        static constexpr int value = 19;
        static constexpr int weight = 20;
        static constexpr int year = 21;
    };
    using ManagedObject::setValue;
    using ManagedObject::value;
    QByteArray backImage() const { return ManagedObject::value(0).toByteArray(); }
    void setBackImage(const QByteArray& v) { setValue(0, v.isNull() ? QVariant() : QVariant(v)); }
    QString country() const { return ManagedObject::value(1).toString(); }
    void setCountry(const QString& v) { setValue(1, v.isNull() ? QVariant() : QVariant(v)); }
    QString denomination() const { return ManagedObject::value(2).toString(); }
    void setDenomination(const QString& v) { setValue(2, v.isNull() ? QVariant() : QVariant(v)); }
    QString descrip() const { return ManagedObject::value(3).toString(); }
    void setDescrip(const QString& v) { setValue(3, v.isNull() ? QVariant() : QVariant(v)); }
    QString designer() const { return ManagedObject::value(4).toString(); }
    void setDesigner(const QString& v) { setValue(4, v.isNull() ? QVariant() : QVariant(v)); }
    double diameter() const { return double(ManagedObject::value(5).toDouble()); }
    void setDiameter(double v) { setValue(5, QVariant(v)); }
    QString edge() const { return ManagedObject::value(6).toString(); }
    void setEdge(const QString& v) { setValue(6, v.isNull() ? QVariant() : QVariant(v)); }
    QByteArray frontImage() const { return ManagedObject::value(7).toByteArray(); }
    void setFrontImage(const QByteArray& v) { setValue(7, v.isNull() ? QVariant() : QVariant(v)); }
    QString gradeNumber() const { return ManagedObject::value(8).toString(); }
    void setGradeNumber(const QString& v) { setValue(8, v.isNull() ? QVariant() : QVariant(v)); }
    qint16 id() const { return qint16(ManagedObject::value(9).toInt()); }
    void setId(qint16 v) { setValue(9, QVariant(v)); }
    QString mintLocation() const { return ManagedObject::value(10).toString(); }
    void setMintLocation(const QString& v) { setValue(10, v.isNull() ? QVariant() : QVariant(v)); }
    QString mintMark() const { return ManagedObject::value(11).toString(); }
    void setMintMark(const QString& v) { setValue(11, v.isNull() ? QVariant() : QVariant(v)); }
    QString notes() const { return ManagedObject::value(12).toString(); }
    void setNotes(const QString& v) { setValue(12, v.isNull() ? QVariant() : QVariant(v)); }
    QString period() const { return ManagedObject::value(13).toString(); }
    void setPeriod(const QString& v) { setValue(13, v.isNull() ? QVariant() : QVariant(v)); }
    qint16 quantity() const { return qint16(ManagedObject::value(14).toInt()); }
    void setQuantity(qint16 v) { setValue(14, QVariant(v)); }
    QString serialNumber() const { return ManagedObject::value(15).toString(); }
    void setSerialNumber(const QString& v) { setValue(15, v.isNull() ? QVariant() : QVariant(v)); }
    QString strikeCharacter() const { return ManagedObject::value(16).toString(); }
    void setStrikeCharacter(const QString& v) {
        setValue(16, v.isNull() ? QVariant() : QVariant(v));
    }
    double thickness() const { return double(ManagedObject::value(17).toDouble()); }
    void setThickness(double v) { setValue(17, QVariant(v)); }
    float totalValue() const { return float(ManagedObject::value(18).toFloat()); }
    void setTotalValue(float v) { setValue(18, QVariant(v)); }
    float value() const { return ManagedObject::value(19).toFloat(); }
    void setValue(float v) { setValue(19, QVariant(v)); }
    double weight() const { return double(ManagedObject::value(20).toDouble()); }
    void setWeight(double v) { setValue(20, QVariant(v)); }
    qint16 year() const { return qint16(ManagedObject::value(21).toInt()); }
    void setYear(qint16 v) { setValue(21, QVariant(v)); }
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
