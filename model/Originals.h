#pragma once
// The photos as they were taken, kept beside the 100 x 100 pictures the coins store.
//
// An original is a file in the folder "Originals" beside the store, named by the SHA-256 of its
// bytes: the same photo on two coins is one file, and a file once written never changes, so the
// daily snapshots (copies of the store alone) share the folder instead of copying the photos.
// A coin names no original: the store links each stored picture (by the SHA-256 of its 100 x 100
// bytes) to the original it was made from. An undo, a version or a snapshot that brings a
// picture back therefore brings its original back with it, and the coin's record, the exchange
// file and every rule that reads a picture see exactly what they saw before.
//
// The file is written and synced before its link, and the link is committed before the coin
// that shows the picture: a stop anywhere leaves at worst a file nothing links to, never a coin
// whose original is missing. Files nothing links to any more (not the store, its journal, nor a
// snapshot) are collected at start.
#include "platform/core/Error.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <optional>

class ManagedObjectContext;
class SqliteDatabase;
struct sqlite3;

namespace Originals {

// The largest original kept: beyond either, the coin keeps its 100 x 100 picture alone.
inline constexpr qint64 MaxBytes = 50LL * 1000 * 1000;
inline constexpr qint64 MaxPixels = 64LL * 1000 * 1000;

struct Original {
    QString hash; // SHA-256 of the bytes, 64 lower-case hexadecimal digits
    QString path; // the file
    QSize size;   // in pixels, as the photo is shown (after its Exif turn)
};

// The table of links, created in one step of the store's schema.
QStringList schema();
QStringList tables();

// The folder beside the store at `storePath`.
QString folderFor(const QString& storePath);
// SHA-256 of the bytes in hexadecimal.
QString hashOf(const QByteArray& bytes);

// Whether a photo of that many bytes and that size (ImageCoding::shownSize) may be kept.
bool keepable(qint64 bytes, const QSize& size);

// Writes the photo's bytes into the folder of the context's store (once: a photo already there
// is not written again), synced, under its hash. `size` is its size as shown.
Result<Original> keep(ManagedObjectContext& context, const QByteArray& bytes, const QSize& size);
// Links a stored 100 x 100 picture to its original, committed at once.
Result<void> link(ManagedObjectContext& context, const QByteArray& picture,
                  const Original& original);
// The original a stored picture was made from, if the store links one (its file may still be
// missing or damaged: read() says so).
std::optional<Original> of(ManagedObjectContext& context, const QByteArray& picture);
// The original's bytes, checked against its hash: a missing or damaged file is an error that
// names it, and the screens show the 100 x 100 picture instead.
Result<QByteArray> read(const Original& original);

// Writes bytes known by their hash into the folder, synced, unless a whole file of that name is
// there already (a restore brings originals back this way).
Result<void> put(const QString& folder, const QString& hash, const QByteArray& bytes);

// A backup is one file: the originals its collection links travel inside it, in a table of
// their own, and a restore puts them back into the folder before the table goes.
// Adds them to the copy (an open database of the store at `storePath`); each one missing or
// damaged is said on the console and left out. How many went in.
Result<int> addToBackup(sqlite3* copy, const QString& storePath);
// Takes them out of a copy about to become the store at `storePath`, into its folder, and drops
// the table. How many were written.
Result<int> takeFromBackup(sqlite3* copy, const QString& storePath);

// Drops the links of pictures that neither the collection nor its journal hold any more, then
// the files in the folder that no link names, in the store nor in any of `snapshots`. How many
// files went.
Result<int> collect(ManagedObjectContext& context, const QString& storePath,
                    const QStringList& snapshots);

} // namespace Originals
