#pragma once
// Files the program writes and reads itself.
#include "platform/core/Error.h"

#include <QByteArray>
#include <QString>

class QIODevice;

namespace Files {
// The temporary folder, ending with "/".
QString temporaryDirectory();
// The documents folder, ending with "/": the user's documents, or the one set (inside the data
// folder when one is given). Created when asked for.
QString documentsDirectory();
void setDocumentsDirectory(const QString& dir);
// The folder pictures saved to the photo library go to, ending with "/": the user's pictures,
// or the one set (inside the data folder when one is given). Created when asked for.
QString picturesDirectory();
void setPicturesDirectory(const QString& dir);
// Replaces the file in one step (never half-written), or says why: the system's own reason
// ("No space left on device", "File too large"), the earlier file whole. A target that exists
// and is no regular file (a device, a pipe, a folder) is refused untouched.
Result<void> writeAtomically(const QString& path, const QByteArray& bytes);
// The same for a copy of a file, read as it is written: the target may be the source itself.
Result<void> copyAtomically(const QString& from, const QString& to);
// Whether a file may be written at the path: nothing there yet, or a regular file, and none of
// the collection's own files (ProtectedFiles.h).
Result<void> isWritableTarget(const QString& path);
// All the bytes to an open device, or the device's reason when it takes no more.
Result<void> writeAll(QIODevice& device, const QByteArray& bytes);
Result<void> writeTextAtomically(const QString& path, const QString& text);
// The whole file as text: UTF-8, or UTF-16 when it starts with a byte-order mark.
Result<QString> readText(const QString& path);
} // namespace Files
