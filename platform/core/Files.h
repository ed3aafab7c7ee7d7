#pragma once
// Files the program writes and reads itself.
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
// Replaces the file in one step (never half-written); false with the reason in *error, the
// system's own ("No space left on device", "File too large"), and the earlier file whole. A
// target that exists and is no regular file (a device, a pipe, a folder) is refused untouched.
bool writeAtomically(const QString& path, const QByteArray& bytes, QString* error = nullptr);
// The same for a copy of a file, read as it is written: the target may be the source itself.
bool copyAtomically(const QString& from, const QString& to, QString* error = nullptr);
// Whether a file may be written at the path: nothing there yet, or a regular file.
bool isWritableTarget(const QString& path, QString* error = nullptr);
// All the bytes to an open device; false with the device's reason when it takes no more.
bool writeAll(QIODevice& device, const QByteArray& bytes, QString* error = nullptr);
bool writeTextAtomically(const QString& path, const QString& text, QString* error = nullptr);
// The whole file as text: UTF-8, or UTF-16 when it starts with a byte-order mark.
bool readText(const QString& path, QString& text, QString* error = nullptr);
} // namespace Files
