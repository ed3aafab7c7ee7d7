#include "platform/core/Files.h"

#include "platform/core/NativeFiles.h"
#include "platform/core/NativeNames.h"
#include "platform/core/ProtectedFiles.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringDecoder>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Files {

QString temporaryDirectory() {
    return QDir::tempPath() + QLatin1Char('/');
}

namespace {
QString& documentsSetting() {
    static QString dir;
    return dir;
}
} // namespace

QString documentsDirectory() {
    QString dir = documentsSetting();
    if (dir.isEmpty())
        dir = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    makePath(dir);
    return dir.endsWith(QLatin1Char('/')) ? dir : dir + QLatin1Char('/');
}

void setDocumentsDirectory(const QString& dir) {
    documentsSetting() = dir;
}

namespace {
QString& picturesSetting() {
    static QString dir;
    return dir;
}
} // namespace

QString picturesDirectory() {
    QString dir = picturesSetting();
    if (dir.isEmpty())
        dir = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    makePath(dir);
    return dir.endsWith(QLatin1Char('/')) ? dir : dir + QLatin1Char('/');
}

void setPicturesDirectory(const QString& dir) {
    picturesSetting() = dir;
}

namespace {
Error writing(const QString& path, const QString& why) {
    return Error::because(ErrorCode::CantOpen, why, QStringLiteral("writing ") + path);
}
} // namespace

Result<void> writeAll(QIODevice& device, const QByteArray& bytes) {
    // A write cut short by a full disk or a size limit reports no reason; the next one fails
    // with the system's.
    qint64 n = 0;
    for (qint64 done = 0; done < bytes.size(); done += n)
        if ((n = device.write(bytes.constData() + done, bytes.size() - done)) <= 0)
            return Error::because(ErrorCode::CantOpen, device.errorString());
    return {};
}

Result<void> isWritableTarget(const QString& path) {
    // Renaming a new file over a device node or a pipe would replace it, even for root.
    if (const QString why = protectedReason(path); !why.isEmpty())
        return writing(path, why);
    if (const Status target = status(path); !target.exists || target.isFile)
        return {};
    return writing(path, QStringLiteral("it is not a regular file"));
}

namespace {
// Where a write to the path lands: a symbolic link is followed to the file it names (which
// need not exist yet), so that the link stays a link.
QString finalTarget(const QString& path) {
    QString target = path;
    for (int depth = 0; depth < 40; ++depth) {
        const QByteArray name = nativeName(target);
        struct stat st {};
        if (::lstat(name.constData(), &st) != 0 || !S_ISLNK(st.st_mode))
            break;
        QByteArray link(qsizetype(st.st_size > 0 ? st.st_size : 4095) + 1, '\0');
        const ssize_t n = ::readlink(name.constData(), link.data(), size_t(link.size()));
        if (n <= 0 || n == link.size())
            break;
        const QString to = fromNativeName(link.left(n));
        target = to.startsWith(QLatin1Char('/')) ? to : folderOf(target) + QLatin1Char('/') + to;
    }
    return target;
}

// A new file beside the target that takes the target's place once it is whole: written,
// synced, renamed over it, the folder synced. Removed when it never gets there.
class Replacement {
public:
    explicit Replacement(const QString& path)
        : target_(finalTarget(path)) {}
    ~Replacement() {
        file_.close();
        if (fd_ >= 0)
            ::close(fd_);
        if (!temporary_.isEmpty())
            remove(temporary_);
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    // The new file, empty, with the permissions of the file it replaces; or the system's reason.
    Result<void> open() {
        struct stat existing {};
        const bool replaces = ::stat(nativeName(target_).constData(), &existing) == 0;
        // A file this process may not write is not replaced, though its folder would allow it.
        if (replaces && ::access(nativeName(target_).constData(), W_OK) != 0)
            return Error::because(ErrorCode::CantOpen, qt_error_string(errno));
        const Result<NewFile> made = createUnique(target_ + QStringLiteral(".XXXXXX"), 0666);
        if (!made.ok())
            return made.error();
        fd_ = made.value().fd;
        temporary_ = made.value().path;
        if (replaces)
            ::fchmod(fd_, existing.st_mode & 07777);
        // Unbuffered: every write reaches the system, which says at once when it takes no more.
        if (!file_.open(fd_, QIODevice::WriteOnly | QIODevice::Unbuffered))
            return Error::because(ErrorCode::CantOpen, file_.errorString());
        return {};
    }
    QIODevice& device() { return file_; }

    Result<void> commit() {
        file_.close();
        const int fd = std::exchange(fd_, -1);
        // A file system may report a failed write only when the file is synced or closed.
        if (::fsync(fd) != 0) {
            const int error = errno;
            ::close(fd);
            return Error::because(ErrorCode::CantOpen, qt_error_string(error));
        }
        if (::close(fd) != 0 ||
            ::rename(nativeName(temporary_).constData(), nativeName(target_).constData()) != 0)
            return Error::because(ErrorCode::CantOpen, qt_error_string(errno));
        temporary_.clear();
        // The new name in the folder on the disk too.
        if (const int folder = ::open(nativeName(folderOf(target_)).constData(),
                                      O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            folder >= 0) {
            ::fsync(folder);
            ::close(folder);
        }
        return {};
    }

private:
    QString target_, temporary_;
    int fd_ = -1;
    QFile file_;
};
} // namespace

Result<void> copyAtomically(const QString& from, const QString& to) {
    if (Result<void> target = isWritableTarget(to); !target.ok())
        return target;
    QFile in;
    if (const Result<void> opened = open(in, from, QIODevice::ReadOnly); !opened.ok())
        return Error::because(ErrorCode::CantOpen, opened.error().message,
                              QStringLiteral("reading ") + from);
    Replacement out(to);
    if (const Result<void> opened = out.open(); !opened.ok())
        return writing(to, opened.error().message);
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(1 << 20);
        if (chunk.isEmpty() && in.error() != QFileDevice::NoError)
            return Error::because(ErrorCode::CantOpen, in.errorString(),
                                  QStringLiteral("reading ") + from);
        if (const Result<void> written = writeAll(out.device(), chunk); !written.ok())
            return writing(to, written.error().message);
    }
    if (const Result<void> committed = out.commit(); !committed.ok())
        return writing(to, committed.error().message);
    return {};
}

Result<void> writeAtomically(const QString& path, const QByteArray& bytes) {
    if (Result<void> target = isWritableTarget(path); !target.ok())
        return target;
    Replacement file(path);
    Result<void> done = file.open();
    if (done.ok())
        done = writeAll(file.device(), bytes);
    if (done.ok())
        done = file.commit();
    if (!done.ok())
        return writing(path, done.error().message);
    return {};
}

Result<void> writeTextAtomically(const QString& path, const QString& text) {
    return writeAtomically(path, text.toUtf8());
}

Result<QString> readText(const QString& path) {
    QFile file;
    if (const Result<void> opened = open(file, path, QIODevice::ReadOnly); !opened.ok())
        return Error::because(ErrorCode::CantOpen, opened.error().message,
                              QStringLiteral("reading ") + path);
    const QByteArray bytes = file.readAll();
    auto encoding = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    QString text = decoder(bytes);
    if (decoder.hasError())
        return Error::because(ErrorCode::CantOpen,
                              QStringLiteral("The file is not text in a known encoding."),
                              QStringLiteral("reading ") + path);
    return text;
}

} // namespace Files
