#include "model/StoreLock.h"

#include "platform/core/NativeNames.h"
#include "platform/core/ProtectedFiles.h"

#include <QFile>
#include <QMap>
#include <QThread>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <mutex>
#include <unistd.h>

namespace {
constexpr off_t kWriterByte = 0, kFileByte = 1;

// What a byte is locked as: nothing, shared or alone.
enum class Hold { None, Shared, Alone };

int defaultWait() {
    bool ok = false;
    const int fromEnvironment = qEnvironmentVariableIntValue("PELVANE_LOCK_WAIT_MS", &ok);
    return ok && fromEnvironment >= 0 ? fromEnvironment : 5000;
}

QString commandLineOf(pid_t pid) {
    QFile file(QStringLiteral("/proc/%1/cmdline").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray bytes = file.readAll();
    while (bytes.endsWith('\0'))
        bytes.chop(1);
    return QString::fromLocal8Bit(bytes.replace('\0', ' '));
}
} // namespace

struct StoreLock::Entry {
    QString path;
    int fd = -1;
    int counts[3] = {0, 0, 0}; // holders at each level
    Hold writer = Hold::None, file = Hold::None;
    QString holder;

    Hold wantedWriter(const int (&c)[3]) const {
        return c[Writing] + c[Replacing] > 0 ? Hold::Alone : Hold::None;
    }
    Hold wantedFile(const int (&c)[3]) const {
        return c[Replacing] > 0                         ? Hold::Alone
               : c[Reading] + c[Writing] + c[Replacing] ? Hold::Shared
                                                        : Hold::None;
    }
    bool set(off_t byte, Hold hold) const {
        struct flock lock {};
        lock.l_type = hold == Hold::Alone ? F_WRLCK : hold == Hold::Shared ? F_RDLCK : F_UNLCK;
        lock.l_whence = SEEK_SET;
        lock.l_start = byte;
        lock.l_len = 1;
        return ::fcntl(fd, F_SETLK, &lock) == 0;
    }
    // Who holds the byte against us, as a person reads it.
    QString heldBy(off_t byte, Hold wanted) const {
        struct flock lock {};
        lock.l_type = wanted == Hold::Alone ? F_WRLCK : F_RDLCK;
        lock.l_whence = SEEK_SET;
        lock.l_start = byte;
        lock.l_len = 1;
        if (::fcntl(fd, F_GETLK, &lock) != 0 || lock.l_type == F_UNLCK)
            return QStringLiteral("another program");
        char text[512] = {};
        const ssize_t n = ::pread(fd, text, sizeof text - 1, 0);
        const QString written = QString::fromUtf8(text, n > 0 ? n : 0);
        const qsizetype tab = written.indexOf(u'\t');
        if (tab > 0 && written.left(tab).toLongLong() == lock.l_pid)
            return QStringLiteral("%1 (process %2)")
                .arg(written.mid(tab + 1).trimmed())
                .arg(lock.l_pid);
        const QString command = commandLineOf(lock.l_pid);
        return command.isEmpty() ? QStringLiteral("process %1").arg(lock.l_pid)
                                 : QStringLiteral("%1 (process %2)").arg(command).arg(lock.l_pid);
    }
    // Moves both bytes to what the counts ask for, waiting up to the deadline for others.
    Result<void> apply(const int (&c)[3], int waitMs) {
        const Hold w = wantedWriter(c), f = wantedFile(c);
        if (fd < 0 || (w == writer && f == file))
            return {};
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(waitMs);
        // The writer's byte first: of two restores, the second waits there, never half-way.
        for (const auto& [byte, wanted, now] :
             {std::tuple{kWriterByte, w, &writer}, std::tuple{kFileByte, f, &file}}) {
            if (wanted == *now)
                continue;
            while (!set(byte, wanted)) {
                if ((errno != EAGAIN && errno != EACCES) ||
                    std::chrono::steady_clock::now() >= deadline) {
                    const QString who = heldBy(byte, wanted);
                    // Back to what was held before.
                    set(kWriterByte, writer);
                    set(kFileByte, file);
                    return Error::because(
                        ErrorCode::Busy,
                        QStringLiteral("The collection is in use by %1; try again when it is done")
                            .arg(who));
                }
                QThread::msleep(20);
            }
        }
        writer = w;
        file = f;
        return {};
    }
    void sign(const QString& who) const {
        if (fd < 0)
            return;
        const QByteArray text = QByteArray::number(qint64(::getpid())) + '\t' + who.toUtf8() + '\n';
        if (::ftruncate(fd, 0) == 0 && ::pwrite(fd, text.constData(), size_t(text.size()), 0) < 0)
            return;
    }
};

namespace {
std::mutex& registryMutex() {
    static std::mutex m;
    return m;
}
// One open file per lock file and process: closing any descriptor of a file lets go of every
// record lock the process holds on it.
QMap<QString, std::weak_ptr<StoreLock::Entry>>& registry() {
    static QMap<QString, std::weak_ptr<StoreLock::Entry>> r;
    return r;
}
} // namespace

bool storeIsFile(const QString& storePath) {
    return !storePath.isEmpty() && !storePath.startsWith(QLatin1String("file:"));
}

QString StoreLock::lockPath(const QString& storePath) {
    return Files::resolved(storePath) + QStringLiteral(".lock");
}

Result<StoreLock> StoreLock::acquire(const QString& storePath, Level level, const QString& holder,
                                     int waitMs) {
    StoreLock out;
    out.level_ = level;
    if (waitMs < 0)
        waitMs = defaultWait();
    std::lock_guard guard(registryMutex());
    const QString path = storeIsFile(storePath) ? lockPath(storePath) : QString();
    std::shared_ptr<Entry> entry = registry().value(path).lock();
    if (!entry) {
        entry = std::make_shared<Entry>();
        entry->path = path;
        if (!path.isEmpty()) {
            entry->fd =
                ::open(Files::nativeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
            // A folder nobody may write holds a store nobody can change: no lock is needed.
            if (entry->fd < 0 && errno != EROFS && errno != EACCES && errno != ENOENT)
                return Error::because(ErrorCode::CantOpen,
                                      QStringLiteral("Cannot make the lock file %1: %2")
                                          .arg(path, QString::fromLocal8Bit(strerror(errno))));
        }
        if (entry->fd >= 0)
            registry().insert(path, entry);
    }
    int counts[3] = {entry->counts[0], entry->counts[1], entry->counts[2]};
    ++counts[level];
    if (const Result<void> applied = entry->apply(counts, waitMs); !applied.ok())
        return applied.error();
    std::copy(std::begin(counts), std::end(counts), entry->counts);
    if (level != Reading && entry->counts[Writing] + entry->counts[Replacing] == 1) {
        entry->holder = holder;
        entry->sign(holder);
    }
    out.entry_ = std::move(entry);
    return out;
}

Result<void> StoreLock::change(Level level, int waitMs) {
    if (!entry_ || level == level_)
        return {};
    if (waitMs < 0)
        waitMs = defaultWait();
    std::lock_guard guard(registryMutex());
    int counts[3] = {entry_->counts[0], entry_->counts[1], entry_->counts[2]};
    --counts[level_];
    ++counts[level];
    if (const Result<void> applied = entry_->apply(counts, waitMs); !applied.ok())
        return applied;
    std::copy(std::begin(counts), std::end(counts), entry_->counts);
    level_ = level;
    return {};
}

StoreLock::StoreLock(StoreLock&& other) noexcept
    : entry_(std::move(other.entry_))
    , level_(other.level_) {}

StoreLock& StoreLock::operator=(StoreLock&& other) noexcept {
    if (this != &other) {
        release();
        entry_ = std::move(other.entry_);
        level_ = other.level_;
    }
    return *this;
}

StoreLock::~StoreLock() {
    release();
}

void StoreLock::release() {
    if (!entry_)
        return;
    std::lock_guard guard(registryMutex());
    --entry_->counts[level_];
    // Letting go never waits.
    entry_->apply(entry_->counts, 0);
    const bool last = entry_->counts[0] + entry_->counts[1] + entry_->counts[2] == 0;
    if (last && entry_->fd >= 0) {
        ::close(entry_->fd);
        entry_->fd = -1;
        registry().remove(entry_->path);
    }
    entry_.reset();
}
