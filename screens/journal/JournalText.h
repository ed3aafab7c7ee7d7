#pragma once
// The journal's changes in the words the coin form uses: "Value: 1.50 → 3.25", "Front picture
// added". Shared by the list of recent changes and a coin's earlier versions.
#include "model/Journal.h"

namespace JournalText {
// The form's label for an attribute ("Mint Mark" for mintMark); the attribute itself when the
// form has none.
QString attributeName(const QString& attribute);
// One line per field: "Value: 1.50 → 3.25", "Front picture changed".
QString fieldLine(const Journal::FieldChange& field);
QStringList fieldLines(const QList<Journal::FieldChange>& fields);
// "Added", "Changed", "Deleted".
QString kindName(Journal::RowChange::Kind kind);
// When a step was written, in the user's short date and time.
QString when(const QDateTime& time);
} // namespace JournalText
