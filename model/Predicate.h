#pragma once
// Equality predicates in the format texts the screens use ("key = %@", "key == %@", "key=%@"),
// joined with AND. Each compiles to SQL with bound parameters and evaluates in memory on an
// object; both give the same answer.
#include "model/Entity.h"

#include <QString>
#include <QVariant>
#include <QVariantList>
#include <vector>

class ManagedObject;

class Predicate {
public:
    Predicate() = default;
    // A format the parser does not know, or a placeholder count that differs from the
    // argument count, is a programming error (fatal). Formats may join terms with AND / &&.
    static Predicate format(const QString& format, const QVariantList& arguments);
    static Predicate format(const QString& format, const QVariant& argument) {
        return Predicate::format(format, QVariantList{argument});
    }
    static Predicate andPredicate(const std::vector<Predicate>& predicates);

    bool isEmpty() const { return terms_.empty(); }
    bool evaluate(const ManagedObject& object) const;
    // The WHERE clause for the entity ("1" when empty); appends the values to bind in order.
    QString sql(const EntityDescription& entity, QVariantList& binds) const;
    QString description() const;

    struct Term {
        QString key;
        QVariant argument;
    };
    const std::vector<Term>& terms() const { return terms_; }

private:
    std::vector<Term> terms_;
};

struct SortDescriptor {
    QString key;
    bool ascending = true;
};

struct FetchRequest {
    explicit FetchRequest(QString entity = QString())
        : entityName(std::move(entity)) {}
    QString entityName;
    Predicate predicate;
    std::vector<SortDescriptor> sortDescriptors;
    // Kept for the screens that set it; records always come back with their values, and
    // pictures are read on first access either way.
    bool returnsObjectsAsFaults = true;
};

namespace PredicateDetail {
// How an argument compares with an attribute of the given type: the value to compare with,
// or an invalid QVariant when the argument can match nothing (a text that spells no number).
// `isNil` is set when the argument is absent, which matches absent values only.
QVariant comparable(AttributeType type, const QVariant& argument, bool& isNil);
// Code-point order of two texts (what SQLite's BINARY collation gives on UTF-8).
int compareText(const QString& a, const QString& b);
} // namespace PredicateDetail
