#pragma once
// The files no output of the program may land on: the collection's store, its log, index and
// journal, its lock file and its snapshot folder. Every write of a file the user names asks
// here first (Files::isWritableTarget), whatever the path says on its way there: a symlink, a
// hard link, "..", a file that does not exist yet.
#include <QString>

namespace Files {
// The path with every symlink followed (a dangling one too) and the folders made canonical;
// absolute. A path whose folder does not exist is made absolute only.
QString resolved(const QString& path);
// Registers the store at the path (and the files beside it that belong to it).
void protectStore(const QString& storePath);
// Why no output may go to the path ("it is the collection's store ..."), or empty.
QString protectedReason(const QString& path);
} // namespace Files
