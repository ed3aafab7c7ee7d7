#include "model/Predicate.h"

#include "model/ManagedObject.h"
#include "model/Numbers.h"
#include "platform/core/Fatal.h"

#include <QHash>
#include <QRegularExpression>
#include <cmath>

namespace PredicateDetail {

QVariant comparable(AttributeType type, const QVariant& argument, bool& isNil) {
    isNil = !argument.isValid() ||
            (argument.typeId() == QMetaType::QString && argument.toString().isNull());
    if (isNil)
        return QVariant();
    const bool isText = argument.typeId() == QMetaType::QString;
    switch (type) {
    case AttributeType::Text:
        return QVariant(argument.toString());
    case AttributeType::Data:
        return QVariant(argument.toByteArray());
    case AttributeType::Int16: {
        if (!isText)
            return QVariant(qint64(argument.toLongLong()));
        // A text argument compares with the number it spells; if it spells none, no match.
        const QString t = argument.toString().trimmed();
        bool ok = false;
        const qint64 n = t.toLongLong(&ok);
        if (ok)
            return QVariant(n);
        if (auto d = Numbers::parseDouble(t))
            return QVariant(*d);
        return QVariant();
    }
    case AttributeType::Double:
    case AttributeType::Float: {
        double d = 0;
        if (isText) {
            auto parsed = Numbers::parseDouble(argument.toString().trimmed());
            if (!parsed)
                return QVariant();
            d = *parsed;
        } else {
            d = argument.toDouble();
        }
        // Floats are stored widened from single precision; compare at that precision.
        return QVariant(type == AttributeType::Float ? double(float(d)) : d);
    }
    }
    return QVariant();
}

int compareText(const QString& a, const QString& b) {
    const qsizetype n = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < n; ++i) {
        char16_t x = a[i].unicode(), y = b[i].unicode();
        if (x == y)
            continue;
        // UTF-16 order differs from code-point order only where surrogates meet U+E000..U+FFFF.
        const bool sx = QChar::isSurrogate(x), sy = QChar::isSurrogate(y);
        if (sx != sy)
            return sx ? 1 : -1;
        return x < y ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

} // namespace PredicateDetail

Predicate Predicate::format(const QString& format, const QVariantList& arguments) {
    // Screens build the same few formats over and over (the import once per line): parse
    // each text once.
    static QHash<QString, QStringList> parsed;
    auto it = parsed.constFind(format);
    if (it == parsed.cend()) {
        static const QRegularExpression termRe(
            QStringLiteral("^\\s*([A-Za-z_][A-Za-z0-9_]*)\\s*(==|=)\\s*%@\\s*$"));
        static const QRegularExpression andRe(QStringLiteral("\\s+(?:AND|and)\\s+|\\s*&&\\s*"));
        QStringList keys;
        for (const QString& part : format.split(andRe)) {
            const auto m = termRe.match(part);
            if (!m.hasMatch())
                fatalError(QStringLiteral("The predicate \"%1\" cannot be read").arg(format),
                           "Pelvane/Predicate", __LINE__);
            keys << m.captured(1);
        }
        it = parsed.insert(format, keys);
    }
    if (it->size() != arguments.size())
        fatalError(QStringLiteral("The predicate \"%1\" cannot be read").arg(format),
                   "Pelvane/Predicate", __LINE__);
    Predicate p;
    p.terms_.reserve(std::size_t(it->size()));
    for (qsizetype i = 0; i < it->size(); ++i)
        p.terms_.push_back({it->at(i), arguments[i]});
    return p;
}

Predicate Predicate::andPredicate(const std::vector<Predicate>& predicates) {
    Predicate p;
    for (const auto& q : predicates)
        p.terms_.insert(p.terms_.end(), q.terms_.begin(), q.terms_.end());
    return p;
}

static int checkedIndex(const EntityDescription& e, const QString& key) {
    const int i = e.indexOf(key);
    if (i < 0)
        fatalError(QStringLiteral("The entity %2 has no attribute %1").arg(key, e.name),
                   "Pelvane/Predicate", __LINE__);
    return i;
}

bool Predicate::evaluate(const ManagedObject& object) const {
    const EntityDescription& e = object.entity();
    for (const Term& t : terms_) {
        const int i = checkedIndex(e, t.key);
        const AttributeType type = e.attributes[std::size_t(i)].type;
        bool nil = false;
        const QVariant want = PredicateDetail::comparable(type, t.argument, nil);
        const bool has = object.hasValue(i);
        if (nil) {
            if (has)
                return false;
            continue;
        }
        if (!has || !want.isValid())
            return false;
        const QVariant v = object.value(i);
        bool equal = false;
        switch (type) {
        case AttributeType::Text:
            equal = v.toString() == want.toString();
            break;
        case AttributeType::Data: // pictures are never compared, in SQL or here
            break;
        case AttributeType::Int16:
            equal = want.typeId() == QMetaType::Double ? double(v.toInt()) == want.toDouble()
                                                       : qint64(v.toInt()) == want.toLongLong();
            break;
        case AttributeType::Double:
        case AttributeType::Float:
            equal = v.toDouble() == want.toDouble();
            break;
        }
        if (!equal)
            return false;
    }
    return true;
}

QString Predicate::sql(const EntityDescription& e, QVariantList& binds) const {
    if (terms_.empty())
        return QStringLiteral("1");
    QStringList parts;
    for (const Term& t : terms_) {
        const int i = checkedIndex(e, t.key);
        const AttributeType type = e.attributes[std::size_t(i)].type;
        bool nil = false;
        const QVariant want = PredicateDetail::comparable(type, t.argument, nil);
        const QString column = QLatin1Char('"') + t.key + QLatin1Char('"');
        if (nil) {
            parts << column + QLatin1String(" IS NULL");
        } else if (!want.isValid() || type == AttributeType::Data) {
            parts << QStringLiteral("0");
        } else {
            parts << column + QLatin1String(" = ?");
            binds << want;
        }
    }
    return parts.join(QLatin1String(" AND "));
}

QString Predicate::description() const {
    QStringList parts;
    for (const Term& t : terms_)
        parts << QStringLiteral("%1 == \"%2\"").arg(t.key, t.argument.toString());
    return parts.join(QLatin1String(" AND "));
}
