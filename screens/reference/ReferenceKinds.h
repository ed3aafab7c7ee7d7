#pragma once
// What differs between the grade, strike character and edge lists, as data: one row per list
// for the list screens, one for their add and edit screens. Nothing else differs.
#include <QString>

struct ReferenceListKind {
    QString hubButton, hubTitle, listSegue; // the hub's button and the segue it performs
    QString entity, attribute;              // the record type and its one text attribute
    QString title, placeholder;
    QString editSegue, addSegue;
    QString unwind;     // the return of the add and edit screens
    QString* selection; // the selection variable a row choice writes
};

struct ReferenceValueKind {
    const ReferenceListKind* list; // the entity, attribute and selection variable
    QString addTitle, addField, emptyMessage;
    QString editTitle, editField, lookupFormat;
    QString saveAction; // also the save button's object name
    QString returnSegue;
};

namespace ReferenceKinds {
const ReferenceListKind& gradeList();
const ReferenceListKind& strikeList();
const ReferenceListKind& edgeList();
const ReferenceValueKind& grade();
const ReferenceValueKind& strike();
const ReferenceValueKind& edge();
} // namespace ReferenceKinds
