#include "platform/core/NativeFiles.h"

#include "platform/core/NativeNames.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Files {

namespace {
Error systemReason() {
    return Error::because(ErrorCode::CantOpen, qt_error_string(errno));
}

Status statusOf(const QString& path, const QByteArray& bytes) {
    Status out;
    out.path = path;
    struct stat st {};
    if (::stat(bytes.constData(), &st) != 0)
        return out;
    out.exists = true;
    out.isFile = S_ISREG(st.st_mode);
    out.isDir = S_ISDIR(st.st_mode);
    out.size = out.isFile || out.isDir ? qint64(st.st_size) : 0;
    out.modified = QDateTime::fromMSecsSinceEpoch(qint64(st.st_mtim.tv_sec) * 1000 +
                                                  st.st_mtim.tv_nsec / 1000000);
    return out;
}
} // namespace

QString Status::fileName() const {
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

Status status(const QString& path) {
    return statusOf(path, nativeName(path));
}

bool isWritable(const QString& path) {
    return ::access(nativeName(path).constData(), W_OK) == 0;
}

QString absoluteName(const QString& path) {
    if (path.startsWith(QLatin1Char('/')))
        return QDir::cleanPath(path);
    // The working folder's name as the system has it: Qt's would lose what is not UTF-8.
    QByteArray cwd(4096, '\0');
    while (!::getcwd(cwd.data(), size_t(cwd.size()))) {
        if (errno != ERANGE)
            return QDir::cleanPath(QDir::currentPath() + QLatin1Char('/') + path);
        cwd.resize(cwd.size() * 2);
    }
    cwd.truncate(qsizetype(std::strlen(cwd.constData())));
    return QDir::cleanPath(fromNativeName(cwd) + QLatin1Char('/') + path);
}

QString folderOf(const QString& path) {
    const QString absolute = absoluteName(path);
    const qsizetype slash = absolute.lastIndexOf(QLatin1Char('/'));
    return slash <= 0 ? QStringLiteral("/") : absolute.left(slash);
}

QString canonicalName(const QString& path) {
    char* resolved = ::realpath(nativeName(path).constData(), nullptr);
    if (!resolved)
        return {};
    const QString out = fromNativeName(QByteArray(resolved));
    std::free(resolved);
    return out;
}

bool makePath(const QString& dir) {
    const QByteArray path = nativeName(absoluteName(dir));
    for (qsizetype slash = path.indexOf('/', 1);; slash = path.indexOf('/', slash + 1)) {
        const QByteArray part = slash < 0 ? path : path.left(slash);
        // A folder above that is there but may not be written to is no failure.
        if (::mkdir(part.constData(), 0777) != 0 && errno != EEXIST &&
            !statusOf(QString(), part).isDir)
            return false;
        if (slash < 0)
            break;
    }
    return statusOf(QString(), path).isDir;
}

bool remove(const QString& path) {
    return ::unlink(nativeName(path).constData()) == 0 || errno == ENOENT;
}

QList<Status> filesIn(const QString& dir, const QStringList& wildcards) {
    QList<QRegularExpression> patterns;
    for (const QString& w : wildcards)
        patterns << QRegularExpression(QRegularExpression::wildcardToRegularExpression(w),
                                       QRegularExpression::CaseInsensitiveOption);
    QList<Status> out;
    const QByteArray folder = nativeName(dir);
    DIR* listing = ::opendir(folder.constData());
    if (!listing)
        return out;
    while (const dirent* entry = ::readdir(listing)) {
        const QByteArray bytes(entry->d_name);
        if (bytes == "." || bytes == "..")
            continue;
        const QString name = fromNativeName(bytes);
        // As a folder listing shows them: a name that begins with a dot only when asked for
        // by a wildcard that begins with one.
        bool matches = false;
        for (qsizetype i = 0; i < wildcards.size() && !matches; ++i)
            matches = (!name.startsWith(QLatin1Char('.')) || wildcards[i].startsWith(u'.')) &&
                      patterns[i].match(name).hasMatch();
        if (!matches)
            continue;
        Status s = statusOf(dir + QLatin1Char('/') + name, folder + '/' + bytes);
        if (s.isFile)
            out << s;
    }
    ::closedir(listing);
    return out;
}

Result<void> open(QFile& file, const QString& path, QIODevice::OpenMode mode) {
    const bool reads = mode & QIODevice::ReadOnly, writes = mode & QIODevice::WriteOnly;
    int flags = O_CLOEXEC | (reads && writes ? O_RDWR : writes ? O_WRONLY : O_RDONLY);
    if (writes) {
        if (!(mode & QIODevice::ExistingOnly))
            flags |= O_CREAT;
        if (mode & QIODevice::NewOnly)
            flags |= O_EXCL;
        if (mode & QIODevice::Append)
            flags |= O_APPEND;
        else if ((mode & QIODevice::Truncate) || !reads)
            flags |= O_TRUNC;
    }
    const int fd = ::open(nativeName(path).constData(), flags, 0666);
    if (fd < 0)
        return systemReason();
    // A folder opens for reading, but holds no bytes: refused, as QFile refuses it.
    if (struct stat st{}; !writes && ::fstat(fd, &st) == 0 && S_ISDIR(st.st_mode)) {
        ::close(fd);
        return Error::because(ErrorCode::CantOpen, qt_error_string(EISDIR));
    }
    if (!file.open(fd, mode & ~(QIODevice::Truncate | QIODevice::NewOnly | QIODevice::ExistingOnly),
                   QFileDevice::AutoCloseHandle)) {
        const QString why = file.errorString();
        ::close(fd);
        return Error::because(ErrorCode::CantOpen, why);
    }
    return {};
}

Result<NewFile> createUnique(const QString& pattern, int mode) {
    static const char kLetters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    const qsizetype at = pattern.lastIndexOf(QLatin1String("XXXXXX"));
    for (int attempt = 0; attempt < 100; ++attempt) {
        QString path = pattern;
        for (qsizetype i = 0; at >= 0 && i < 6; ++i)
            path[at + i] = QLatin1Char(
                kLetters[QRandomGenerator::global()->bounded(int(sizeof kLetters - 1))]);
        const int fd = ::open(nativeName(path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC,
                              mode_t(mode));
        if (fd >= 0)
            return NewFile{fd, path};
        if (errno != EEXIST || at < 0)
            return systemReason();
    }
    return systemReason();
}

QString nameForQt(const QString& dir) {
    if (QFile::encodeName(dir) == nativeName(dir))
        return dir;
    const int fd = ::open(nativeName(dir).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return dir;
    return QStringLiteral("/proc/self/fd/%1").arg(fd);
}

} // namespace Files
