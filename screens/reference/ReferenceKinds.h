#pragma once
// What differs between the grade, strike character and edge lists, as data: one row per list
// for the list screens, one for their add and edit screens. Nothing else differs.
#include <QString>

// The texts shown (const char*) are kept untranslated and shown through ReferenceKinds::tr().
struct ReferenceListKind {
    QString hubButton, listSegue; // the hub's button and the segue it performs
    const char* hubTitle;
    QString entity, attribute; // the record type and its one text attribute
    const char* title;
    const char* placeholder;
    const char* valueName; // what a screen reader calls the value's field
    QString editSegue, addSegue;
    QString unwind;     // the return of the add and edit screens
    QString* selection; // the selection variable a row choice writes
};

struct ReferenceValueKind {
    const ReferenceListKind* list; // the entity, attribute and selection variable
    const char* addTitle;
    QString addField;
    const char* emptyMessage;
    const char* editTitle;
    QString editField, lookupFormat;
    QString saveAction; // also the save button's object name
    QString returnSegue;
};

namespace ReferenceKinds {
// A text of the tables below, translated.
QString tr(const char* text);
const ReferenceListKind& gradeList();
const ReferenceListKind& strikeList();
const ReferenceListKind& edgeList();
const ReferenceValueKind& grade();
const ReferenceValueKind& strike();
const ReferenceValueKind& edge();
} // namespace ReferenceKinds
