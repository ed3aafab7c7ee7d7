#include "model/StoreFiles.h"

#include "model/Sqlite.h"
#include "platform/core/NativeFiles.h"
#include "platform/core/NativeNames.h"

#include <QFile>
#include <QHash>
#include <QMutex>
#include <QUrl>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace StoreFiles {

Error failure(int code, const QString& message) {
    return Error::because(code, message);
}

bool sameFile(const QString& a, const QString& b) {
    const QString ca = Files::canonicalName(a);
    return !ca.isEmpty() && ca == Files::canonicalName(b);
}

namespace {
// The file's bytes on the disk before it takes another's name, and the name in the folder after.
bool syncFile(const QString& path) {
    const int fd = ::open(Files::nativeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool ok = ::fsync(fd) == 0;
    ::close(fd);
    return ok;
}
} // namespace

namespace {
// The copies being written by this process, each locked (flock) for as long as it is written:
// a copy nobody holds is what a stopped program left, and goes at the next sweep.
QMutex partsMutex;
QHash<QString, int> heldParts;

void holdPart(const QString& path) {
    const int fd = ::open(Files::nativeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::flock(fd, LOCK_EX | LOCK_NB);
    QMutexLocker lock(&partsMutex);
    heldParts.insert(path, fd);
}

void letGoPart(const QString& path) {
    QMutexLocker lock(&partsMutex);
    if (const auto it = heldParts.constFind(path); it != heldParts.cend()) {
        ::close(it.value());
        heldParts.erase(it);
    }
}
} // namespace

Error systemError(const QString& doing, int error) {
    return failure(SQLITE_IOERR, QStringLiteral("%1: %2").arg(
                                     doing, QString::fromLocal8Bit(std::strerror(error))));
}

// Renames `from` over `to` for good: synced first, and the folder after.
Result<void> replace(const QString& from, const QString& to) {
    if (!syncFile(from))
        return systemError(QStringLiteral("Cannot write %1").arg(to));
    if (::rename(Files::nativeName(from).constData(), Files::nativeName(to).constData()) != 0)
        return systemError(QStringLiteral("Cannot replace %1").arg(to));
    letGoPart(from);
    syncFile(Files::folderOf(to));
    return {};
}

Result<void> placeNew(const QString& from, const QString& to) {
    if (!syncFile(from))
        return systemError(QStringLiteral("Cannot write %1").arg(to));
    if (::renameat2(AT_FDCWD, Files::nativeName(from).constData(), AT_FDCWD,
                    Files::nativeName(to).constData(), RENAME_NOREPLACE) != 0)
        return systemError(QStringLiteral("Cannot write %1").arg(to));
    letGoPart(from);
    syncFile(Files::folderOf(to));
    return {};
}

void removeCompanions(const QString& path) {
    for (const char* part : {"-journal", "-wal", "-shm"})
        Files::remove(path + QLatin1String(part));
}

void removeWithCompanions(const QString& path) {
    letGoPart(path);
    Files::remove(path);
    removeCompanions(path);
}

// A name beside the target for the copy being made; the file is created empty. On failure errno
// says why: a target whose name is too long is refused before anything is made.
QString temporaryBeside(const QString& target) {
    const QByteArray folder = Files::nativeName(Files::folderOf(target));
    const long longest = ::pathconf(folder.constData(), _PC_NAME_MAX);
    const qsizetype nameMax = longest > 0 ? qsizetype(longest) : NAME_MAX;
    QByteArray name = Files::nativeName(Files::status(target).fileName());
    if (name.size() > nameMax) {
        errno = ENAMETOOLONG;
        return {};
    }
    // "." and ".XXXXXX.part" around the name, and room for the "-journal" SQLite puts beside
    // the copy: a long name is cut, never inside a character, so that the temporary can exist
    // wherever the target can.
    static constexpr char kSuffix[] = ".XXXXXX.part";
    static constexpr char kJournal[] = "-journal";
    const qsizetype room = nameMax - 1 - qsizetype(sizeof kSuffix - 1 + sizeof kJournal - 1);
    if (name.size() > room) {
        qsizetype cut = room;
        while (cut > 0 && (uchar(name[cut]) & 0xC0) == 0x80)
            --cut;
        name.truncate(cut);
    }
    QByteArray path = folder + "/." + name + kSuffix;
    const int fd = ::mkostemps(path.data(), 5, O_CLOEXEC);
    if (fd < 0)
        return {};
    ::close(fd);
    holdPart(Files::fromNativeName(path));
    return Files::fromNativeName(path);
}

void sweepParts(const QString& folder) {
    for (const Files::Status& part : Files::filesIn(folder, {QStringLiteral(".*.??????.part")})) {
        const int fd = ::open(Files::nativeName(part.path).constData(), O_RDONLY | O_CLOEXEC);
        if (fd < 0)
            continue;
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0)
            removeWithCompanions(part.path);
        ::close(fd);
    }
}

namespace {
// All of the bytes, however few each write takes; 0, or the errno of the write that failed.
int writeAll(int fd, const char* data, qint64 size) {
    while (size > 0) {
        const ssize_t n = ::write(fd, data, size_t(size));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return errno;
        if (n == 0)
            return EIO;
        data += n;
        size -= n;
    }
    return 0;
}

// The bytes of one file into another, a few megabytes at a time, by the kernel where it can.
// 0, or the errno of the call that failed.
int copyFile(const QString& from, const QString& to, const Progress& progress) {
    struct Descriptor {
        int fd;
        ~Descriptor() {
            if (fd >= 0)
                ::close(fd);
        }
    };
    const Descriptor in{::open(Files::nativeName(from).constData(), O_RDONLY | O_CLOEXEC)};
    if (in.fd < 0)
        return errno;
    const Descriptor out{
        ::open(Files::nativeName(to).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666)};
    if (out.fd < 0)
        return errno;
    struct stat info {};
    if (::fstat(in.fd, &info) != 0)
        return errno;
    const qint64 total = info.st_size;
    constexpr qint64 kChunk = 16 << 20;
    QByteArray buffer;
    for (qint64 done = 0;;) {
        ssize_t n = -1;
        if (buffer.isEmpty()) {
            n = ::copy_file_range(in.fd, nullptr, out.fd, nullptr, kChunk, 0);
            if (n < 0 && errno == EINTR)
                continue;
            // Anything but "not between these two files" is the copy's own failure (a full
            // disk); a short copy is followed by the call that says why it stopped.
            if (n < 0 && errno != EXDEV && errno != ENOSYS && errno != EINVAL &&
                errno != EOPNOTSUPP && errno != EPERM)
                return errno;
        }
        if (n < 0) {
            if (buffer.isEmpty())
                buffer.resize(kChunk);
            n = ::read(in.fd, buffer.data(), kChunk);
            if (n < 0 && errno == EINTR)
                continue;
            if (n < 0)
                return errno;
            if (const int error = writeAll(out.fd, buffer.constData(), n))
                return error;
        }
        if (n == 0)
            break;
        done += n;
        if (progress)
            progress(int(done / 4096), int(total / 4096));
    }
    return 0;
}
} // namespace

Result<void> copyBytes(const QString& from, const QString& to) {
    if (const int error = copyFile(from, to, {}))
        return systemError(QStringLiteral("Cannot copy %1").arg(from), error);
    return {};
}

void pauseForTests(const char* point) {
    const QByteArray asked = qgetenv("PELVANE_TEST_PAUSE");
    const qsizetype colon = asked.lastIndexOf(':');
    if (colon > 0 && asked.left(colon) == point)
        ::usleep(useconds_t(asked.mid(colon + 1).toInt()) * 1000);
}

// Page by page from one database into another, as of one moment: should another connection
// write to the source meanwhile, SQLite starts the copy again.
Result<void> copyStore(const QString& sourcePath, const QString& destination,
                       const Progress& progress) {
    // Nothing writes to a store whose folder cannot be written: its file and its log, as they
    // are, are the store. They are copied, and the copy takes the log in when it is opened.
    if (!Files::isWritable(Files::folderOf(sourcePath))) {
        if (const int error = copyFile(sourcePath, destination, progress))
            return systemError(QStringLiteral("Cannot copy %1").arg(sourcePath), error);
        if (const Files::Status log = Files::status(sourcePath + QStringLiteral("-wal"));
            log.size > 0)
            if (const int error = copyFile(log.path, destination + QStringLiteral("-wal"), {}))
                return systemError(QStringLiteral("Cannot copy %1").arg(log.path), error);
        SqliteDatabase copy;
        if (!copy.open(destination, SqliteDatabase::Access::Create) ||
            !copy.exec(QStringLiteral("PRAGMA journal_mode=DELETE")))
            return copy.error();
        return {};
    }
    SqliteDatabase source;
    if (!source.open(sourcePath, SqliteDatabase::Access::Read))
        return source.error();
    // Where the log holds nothing, the file is the store as of this read, and stays so while
    // the read lasts: a reader of the file alone keeps every checkpoint from writing into it.
    // It is then copied as it is, several times faster than page by page.
    if (!source.exec(QStringLiteral("BEGIN")) ||
        !source.text(QStringLiteral("SELECT count(*) FROM sqlite_master")))
        return source.error();
    if (const Files::Status log = Files::status(sourcePath + QStringLiteral("-wal"));
        !log.exists || log.size == 0) {
        const int error = copyFile(sourcePath, destination, progress);
        source.exec(QStringLiteral("COMMIT"));
        if (error)
            return systemError(QStringLiteral("Cannot copy %1").arg(sourcePath), error);
        SqliteDatabase copy;
        if (!copy.open(destination, SqliteDatabase::Access::Create) ||
            !copy.exec(QStringLiteral("PRAGMA journal_mode=DELETE")))
            return copy.error();
        return {};
    }
    source.exec(QStringLiteral("COMMIT"));
    // Pages read where they lie; the copy written without a journal of its own, since it is
    // checked whole before it takes any name that matters.
    source.exec(QStringLiteral("PRAGMA mmap_size=1073741824"));
    SqliteDatabase copy;
    if (!copy.open(destination, SqliteDatabase::Access::Create) ||
        !copy.exec(QStringLiteral("PRAGMA journal_mode=OFF")) ||
        !copy.exec(QStringLiteral("PRAGMA synchronous=OFF")))
        return copy.error();
    sqlite3_backup* backup = sqlite3_backup_init(copy.handle(), "main", source.handle(), "main");
    if (!backup)
        return copy.error();
    int rc = SQLITE_OK;
    do {
        rc = sqlite3_backup_step(backup, progress ? 16384 : -1);
        if (progress)
            progress(sqlite3_backup_pagecount(backup) - sqlite3_backup_remaining(backup),
                     sqlite3_backup_pagecount(backup));
        if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
            sqlite3_sleep(10);
    } while (rc == SQLITE_OK || rc == SQLITE_BUSY || rc == SQLITE_LOCKED);
    sqlite3_backup_finish(backup);
    if (rc != SQLITE_DONE) {
        // The reason is the source's when it could not be read (a damaged page).
        const Error fromSource = source.error();
        return fromSource.code != SQLITE_OK ? fromSource : copy.error();
    }
    // A copy stands alone: no write-ahead log beside it.
    if (!copy.exec(QStringLiteral("PRAGMA journal_mode=DELETE")))
        return copy.error();
    return {};
}

std::optional<QString> integrityProblem(SqliteDatabase& db, Check check) {
    db.exec(QStringLiteral("PRAGMA mmap_size=1073741824"));
    const std::optional<QString> verdict =
        db.text(check == Check::Quick ? QStringLiteral("PRAGMA quick_check(1)")
                                      : QStringLiteral("PRAGMA integrity_check(1)"));
    if (!verdict)
        return db.error().message;
    if (*verdict != QLatin1String("ok"))
        return *verdict;
    return {};
}

Result<qint64> countCoins(SqliteDatabase& db) {
    const std::optional<QString> n = db.text(QStringLiteral("SELECT count(*) FROM Coins"));
    if (!n)
        return db.error();
    return n->toLongLong();
}

} // namespace StoreFiles
