#include "platform/core/ProtectedFiles.h"

#include "platform/core/NativeFiles.h"
#include "platform/core/NativeNames.h"

#include <QList>
#include <QMutex>
#include <QSet>

#include <climits>
#include <sys/stat.h>
#include <unistd.h>

namespace Files {

namespace {
struct Protected {
    QSet<QString> files;   // resolved paths
    QSet<QString> folders; // resolved, ending with "/"
    QString store;         // the last store registered, for the messages
};

QMutex& mutex() {
    static QMutex m;
    return m;
}

Protected& registry() {
    static Protected p;
    return p;
}

bool sameInode(const QString& a, const QString& b) {
    struct stat sa {
    }, sb{};
    return ::stat(Files::nativeName(a).constData(), &sa) == 0 &&
           ::stat(Files::nativeName(b).constData(), &sb) == 0 && sa.st_dev == sb.st_dev &&
           sa.st_ino == sb.st_ino;
}
} // namespace

QString resolved(const QString& path) {
    QString current = absoluteName(path);
    // A chain of links ends within the system's own limit, or it is a loop.
    for (int hops = 0; hops < 40; ++hops) {
        const qsizetype slash = current.lastIndexOf(QLatin1Char('/'));
        const QString name = current.mid(slash + 1);
        const QString folder = canonicalName(current.left(std::max<qsizetype>(slash, 1)));
        if (!folder.isEmpty())
            current = (folder == QLatin1String("/") ? folder : folder + QLatin1Char('/')) + name;
        char target[PATH_MAX];
        const ssize_t n = ::readlink(nativeName(current).constData(), target, sizeof target - 1);
        if (n < 0)
            return current;
        const QString link = fromNativeName(QByteArray(target, int(n)));
        current = absoluteName(
            link.startsWith(QLatin1Char('/')) ? link : folderOf(current) + QLatin1Char('/') + link);
    }
    return current;
}

void protectStore(const QString& storePath) {
    if (storePath.isEmpty() || storePath.startsWith(QLatin1String("file:")))
        return;
    QMutexLocker lock(&mutex());
    Protected& p = registry();
    p.store = storePath;
    for (const QString& base : {absoluteName(storePath), resolved(storePath)}) {
        for (const char* part : {"", "-wal", "-shm", "-journal", ".lock"})
            p.files.insert(resolved(base + QLatin1String(part)));
        QString backups = resolved(folderOf(base) + QStringLiteral("/Backups"));
        p.folders.insert(backups.endsWith(u'/') ? backups : backups + u'/');
    }
}

QString protectedReason(const QString& path) {
    QMutexLocker lock(&mutex());
    const Protected& p = registry();
    if (p.files.isEmpty())
        return {};
    const QString target = resolved(path);
    for (const QString& file : p.files)
        if (file == target || sameInode(file, target))
            return QStringLiteral("it is the collection's own file %1 (or one that belongs to it)")
                .arg(file);
    for (const QString& folder : p.folders)
        if (target.startsWith(folder) || target + u'/' == folder)
            return QStringLiteral("it is in the collection's snapshot folder %1").arg(folder);
    return {};
}

} // namespace Files
