#include "screens/journal/JournalText.h"

#include <QCoreApplication>
#include <QLocale>

namespace JournalText {

namespace {
QString tr(const char* text) {
    return QCoreApplication::translate("JournalText", text);
}

// Notes and descriptions can run to pages; a line of the list shows their start.
constexpr int kLongestText = 60;

bool isPicture(const QString& attribute) {
    return attribute == QLatin1String("frontImage") || attribute == QLatin1String("backImage");
}

bool isEmpty(const QVariant& v) {
    if (!v.isValid() || v.isNull())
        return true;
    return v.typeId() == QMetaType::QByteArray ? v.toByteArray().isEmpty() : v.toString().isEmpty();
}

QString valueText(const QString& attribute, const QVariant& v) {
    if (isEmpty(v))
        return tr("(none)");
    // Money in two places, as the form shows it; other measures in their shortest exact form.
    if (attribute == QLatin1String("value") || attribute == QLatin1String("totalValue"))
        return QLocale().toString(v.toDouble(), 'f', 2);
    if (v.typeId() == QMetaType::Double || v.typeId() == QMetaType::Float)
        return QLocale().toString(v.toDouble(), 'g', QLocale::FloatingPointShortest);
    // Years and record numbers read without a thousands separator.
    QString text = v.toString().simplified();
    if (text.size() > kLongestText)
        text = text.left(kLongestText - 1).trimmed() + QChar(0x2026);
    return text;
}
} // namespace

QString attributeName(const QString& attribute) {
    static const std::pair<const char*, const char*> names[] = {
        {"country", QT_TRANSLATE_NOOP("JournalText", "Country")},
        {"denomination", QT_TRANSLATE_NOOP("JournalText", "Denomination")},
        {"year", QT_TRANSLATE_NOOP("JournalText", "Year")},
        {"quantity", QT_TRANSLATE_NOOP("JournalText", "Quantity")},
        {"mintMark", QT_TRANSLATE_NOOP("JournalText", "Mint Mark")},
        {"mintLocation", QT_TRANSLATE_NOOP("JournalText", "Mint Location")},
        {"gradeNumber", QT_TRANSLATE_NOOP("JournalText", "Grade")},
        {"strikeCharacter", QT_TRANSLATE_NOOP("JournalText", "Strike")},
        {"edge", QT_TRANSLATE_NOOP("JournalText", "Edge")},
        {"value", QT_TRANSLATE_NOOP("JournalText", "Value")},
        {"totalValue", QT_TRANSLATE_NOOP("JournalText", "Total Value")},
        {"diameter", QT_TRANSLATE_NOOP("JournalText", "Diameter")},
        {"weight", QT_TRANSLATE_NOOP("JournalText", "Weight")},
        {"thickness", QT_TRANSLATE_NOOP("JournalText", "Thickness")},
        {"serialNumber", QT_TRANSLATE_NOOP("JournalText", "Serial Number")},
        {"period", QT_TRANSLATE_NOOP("JournalText", "Period")},
        {"designer", QT_TRANSLATE_NOOP("JournalText", "Designer")},
        {"descrip", QT_TRANSLATE_NOOP("JournalText", "Description")},
        {"notes", QT_TRANSLATE_NOOP("JournalText", "Notes")},
        {"id", QT_TRANSLATE_NOOP("JournalText", "Record Number")},
        // The reference lists' single values.
        {"grade", QT_TRANSLATE_NOOP("JournalText", "Grade")},
        {"strike", QT_TRANSLATE_NOOP("JournalText", "Strike")},
        {"frontImage", QT_TRANSLATE_NOOP("JournalText", "Front picture")},
        {"backImage", QT_TRANSLATE_NOOP("JournalText", "Back picture")},
    };
    for (const auto& [name, label] : names)
        if (attribute == QLatin1String(name))
            return tr(label);
    return attribute;
}

QString fieldLine(const Journal::FieldChange& field) {
    const QString name = attributeName(field.attribute);
    if (isPicture(field.attribute)) {
        if (isEmpty(field.before))
            return tr("%1 added").arg(name);
        if (isEmpty(field.after))
            return tr("%1 removed").arg(name);
        return tr("%1 changed").arg(name);
    }
    return tr("%1: %2 → %3")
        .arg(name, valueText(field.attribute, field.before),
             valueText(field.attribute, field.after));
}

QStringList fieldLines(const QList<Journal::FieldChange>& fields) {
    QStringList out;
    for (const Journal::FieldChange& f : fields)
        out << fieldLine(f);
    return out;
}

QString kindName(Journal::RowChange::Kind kind) {
    switch (kind) {
    case Journal::RowChange::Kind::Added:
        return tr("Added");
    case Journal::RowChange::Kind::Deleted:
        return tr("Deleted");
    default:
        return tr("Changed");
    }
}

QString when(const QDateTime& time) {
    return QLocale().toString(time.toLocalTime(), QLocale::ShortFormat);
}

} // namespace JournalText
