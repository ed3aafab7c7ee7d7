#include "platform/core/ProtectedFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMutex>
#include <QSet>

#include <sys/stat.h>

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
    return ::stat(QFile::encodeName(a).constData(), &sa) == 0 &&
           ::stat(QFile::encodeName(b).constData(), &sb) == 0 && sa.st_dev == sb.st_dev &&
           sa.st_ino == sb.st_ino;
}
} // namespace

QString resolved(const QString& path) {
    QString current = QFileInfo(path).absoluteFilePath();
    // A chain of links ends within the system's own limit, or it is a loop.
    for (int hops = 0; hops < 40; ++hops) {
        const QFileInfo info(current);
        const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
        if (!folder.isEmpty())
            current = QDir(folder).filePath(info.fileName());
        const QFileInfo here(current);
        if (!here.isSymLink())
            return QDir::cleanPath(current);
        current = here.symLinkTarget();
    }
    return QDir::cleanPath(current);
}

void protectStore(const QString& storePath) {
    if (storePath.isEmpty() || storePath.startsWith(QLatin1String("file:")))
        return;
    QMutexLocker lock(&mutex());
    Protected& p = registry();
    p.store = storePath;
    for (const QString& base : {QFileInfo(storePath).absoluteFilePath(), resolved(storePath)}) {
        for (const char* part : {"", "-wal", "-shm", "-journal", ".lock"})
            p.files.insert(resolved(base + QLatin1String(part)));
        QString backups =
            resolved(QFileInfo(base).absoluteDir().filePath(QStringLiteral("Backups")));
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
