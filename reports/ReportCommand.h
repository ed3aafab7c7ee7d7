#pragma once
// The PDF report of one group from the command line, for scripts.
#include <QString>
#include <QStringList>

class ManagedObjectContext;

namespace ReportCommand {
inline const QString Usage = QStringLiteral(
    "usage: pelvane [--data-dir DIR] --report denomination|country|year VALUE [--pdf FILE]");
// Empty when `arguments` (the kind and the value) name a group; otherwise the usage message.
QString check(const QStringList& arguments);
// Writes the report of the group as its breakdown list shows it on opening to `pdfFile` (empty:
// the list's file in the documents folder). 0; 1 when the group has no coins or the file cannot
// be written; 2 for arguments that name no group. Needs a QGuiApplication.
// `collection`: the store's path, named in the messages, which go to stderr.
int run(ManagedObjectContext& context, const QString& collection, const QStringList& arguments,
        const QString& pdfFile);
} // namespace ReportCommand
