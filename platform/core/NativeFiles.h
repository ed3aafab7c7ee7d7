#pragma once
// What QFileInfo, QDir and QFile would do with a path, done on the path's own bytes
// (Files::nativeName): Qt's classes turn a name that is not UTF-8 into another name.
#include "platform/core/Error.h"

#include <QDateTime>
#include <QIODevice>
#include <QList>
#include <QString>
#include <QStringList>

class QFile;

namespace Files {

// What the system says of a path, symbolic links followed.
struct Status {
    QString path;
    bool exists = false;
    bool isFile = false; // a regular file
    bool isDir = false;
    qint64 size = 0;
    QDateTime modified;
    // The last part of the path.
    QString fileName() const;
};
Status status(const QString& path);
// Whether this process may write the file or into the folder.
bool isWritable(const QString& path);

// The path made absolute against the working folder and cleaned ("a/../b" is "b").
QString absoluteName(const QString& path);
// The absolute path of the folder that holds the path.
QString folderOf(const QString& path);
// The path with every symbolic link resolved; empty when it does not exist.
QString canonicalName(const QString& path);

// Makes the folder and those above it that are missing; true when it is there.
bool makePath(const QString& dir);
// Removes the file (never a folder); true when it is gone.
bool remove(const QString& path);
// The regular files in the folder whose names match one of the wildcards ("Pelvane-*.sqlite").
QList<Status> filesIn(const QString& dir, const QStringList& wildcards);

// Opens the file at the path and hands it to `file`, which closes it: ReadOnly, WriteOnly
// (created, emptied), ReadWrite (created), with Append, NewOnly or ExistingOnly as for QFile.
// On failure, the system's reason.
Result<void> open(QFile& file, const QString& path, QIODevice::OpenMode mode);

// A new file of this process (never one that was there), named after `pattern` with "XXXXXX"
// replaced by six random letters and digits, made with the permissions `mode` less the umask.
// Its open descriptor (the caller closes it) and its path, or the system's reason.
struct NewFile {
    int fd = -1;
    QString path;
};
Result<NewFile> createUnique(const QString& pattern, int mode = 0600);

// A name Qt's own file classes can be given for the folder (QSettings, which takes no
// descriptor): the name itself when Qt encodes it to the same bytes, else one that reaches the
// folder through a descriptor held open for the life of the process.
QString nameForQt(const QString& dir);

} // namespace Files
