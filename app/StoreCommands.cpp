#include "app/StoreCommands.h"

#include "model/Backup.h"
#include "model/Journal.h"
#include "model/PersistentContainer.h"
#include "model/Restore.h"
#include "model/Snapshots.h"
#include "model/StoreLock.h"
#include "platform/core/Console.h"
#include "platform/core/NativeFiles.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/ViewController.h"
#include "platform/kit/Window.h"

#include <QCoreApplication>
#include <QFutureWatcher>
#include <QLocale>
#include <QTimer>
#include <QtConcurrent/QtConcurrentRun>

#include <cstdio>

namespace StoreCommands {

namespace {
void say(const QString& line) {
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}
QString coins(qint64 n) {
    return QStringLiteral("%1 %2").arg(QLocale::c().toString(n),
                                       n == 1 ? QStringLiteral("coin") : QStringLiteral("coins"));
}
} // namespace

QString storePath() {
    return PersistentContainer(QStringLiteral("Pelvane")).storePath();
}

int backup(const QString& file) {
    // A mistyped data folder must not put an empty collection over a full backup.
    if (const Result<qint64> held = Backup::coinCount(file);
        Files::status(file).isFile && held.ok() && held.value() > 0) {
        const Result<qint64> ours = Backup::coinCount(storePath());
        if (ours.ok() && ours.value() == 0) {
            say(QStringLiteral("Not writing %1: the collection is empty and the backup holds %2. "
                               "Check the data folder, or write to another file.")
                    .arg(file, coins(held.value())));
            return 1;
        }
    }
    const Result<qint64> written = Backup::write(storePath(), file);
    if (!written.ok()) {
        say(QStringLiteral("The backup of %1 to %2 failed: %3")
                .arg(storePath(), file, written.error().message));
        return 1;
    }
    std::printf("Backed up %s to %s\n", qPrintable(coins(written.value())), qPrintable(file));
    return 0;
}

int restore(const QString& file) {
    // Nothing else writes from the first check to the last rename.
    const Result<StoreLock> writing = StoreLock::acquire(
        storePath(), StoreLock::Writing, QStringLiteral("pelvane --restore %1").arg(file));
    if (!writing.ok()) {
        say(QStringLiteral("The restore of %1 from %2 failed: %3")
                .arg(storePath(), file, writing.error().message));
        return 1;
    }
    const Result<Backup::Restored> restored =
        Backup::restore(storePath(), file, &PersistentContainer::upgradeCopy);
    if (!restored.ok()) {
        say(QStringLiteral("The restore of %1 from %2 failed: %3")
                .arg(storePath(), file, restored.error().message));
        return 1;
    }
    const Backup::Restored& r = restored.value();
    {
        PersistentContainer container(QStringLiteral("Pelvane"));
        container.loadPersistentStores({});
        if (const Result<void> noted = container.journalRestore(r, file); !noted.ok())
            say(QStringLiteral("The restore cannot be undone: %1").arg(noted.error().message));
    }
    if (r.damaged) {
        std::printf("Restored %s from %s; the damaged collection was moved to %s\n",
                    qPrintable(coins(r.coinsAfter)), qPrintable(file), qPrintable(r.snapshot));
        return 0;
    }
    std::printf("Restored %s from %s; the collection held %s%s\n", qPrintable(coins(r.coinsAfter)),
                qPrintable(file), qPrintable(coins(r.coinsBefore)),
                r.snapshot.isEmpty() ? "" : qPrintable(QStringLiteral(", kept in ") + r.snapshot));
    return 0;
}

int listSnapshots() {
    const QList<Snapshots::Entry> all = Snapshots::list(storePath());
    if (all.isEmpty()) {
        std::printf("No snapshots yet in %s\n", qPrintable(Snapshots::folder(storePath())));
        return 0;
    }
    for (const Snapshots::Entry& e : all) {
        const Result<qint64> n = Backup::coinCount(e.path);
        std::printf(
            "%s  %12s  %9s  %s\n", qPrintable(e.date.toString(Qt::ISODate)),
            qPrintable(n.ok() ? coins(n.value()) : QStringLiteral("unreadable")),
            qPrintable(QLocale::c().formattedDataSize(e.size, 1, QLocale::DataSizeSIFormat)),
            qPrintable(e.path));
    }
    return 0;
}

int undo(ManagedObjectContext& context, const QString& store) {
    const Result<Journal::StepInfo> undone = Journal::undo(context);
    if (!undone.ok()) {
        say(QStringLiteral("Cannot undo in %1: %2").arg(store, undone.error().message));
        return 1;
    }
    std::printf("%s\n", qPrintable(Journal::describe(undone.value(), false)));
    return 0;
}

int changes(ManagedObjectContext& context, const QString& store) {
    const Result<QList<Journal::StepInfo>> steps = Journal::steps(context, 50);
    if (!steps.ok()) {
        say(QStringLiteral("Cannot read the changes of %1: %2").arg(store, steps.error().message));
        return 1;
    }
    if (steps.value().isEmpty())
        std::printf("No changes yet in %s\n", qPrintable(store));
    for (const Journal::StepInfo& s : steps.value()) {
        const bool undone = s.state == Journal::StepInfo::State::Redoable ||
                            s.state == Journal::StepInfo::State::Undone;
        std::printf("%s  %s%s\n",
                    qPrintable(s.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))),
                    qPrintable(Journal::describe(s, false)), undone ? "  (undone)" : "");
    }
    return 0;
}

bool snapshotDue() {
    return Snapshots::due(storePath());
}

void takeSnapshotSoon(Window* window) {
    // Later than the first paint, so that the window never waits for the copy.
    QTimer::singleShot(1500, window, [window, path = storePath()] {
        // (taken, the snapshot's path or why there is none)
        using Outcome = std::pair<bool, QString>;
        auto* watcher = new QFutureWatcher<Outcome>(window);
        QObject::connect(watcher, &QFutureWatcher<Outcome>::finished, watcher, [window, watcher] {
            const auto [taken, text] = watcher->result();
            watcher->deleteLater();
            if (taken) {
                Console::log(QStringLiteral("Snapshot taken: %1").arg(text));
                return;
            }
            Console::log(QStringLiteral("Could not take a snapshot: %1").arg(text));
            if (ViewController* top = window->navigationController()->topViewController())
                top->present(AlertController::okAlert(
                    QCoreApplication::translate("StoreCommands", "No Snapshot Today"),
                    QCoreApplication::translate(
                        "StoreCommands",
                        "Pelvane could not keep today's snapshot of the collection: %1\n\nThe "
                        "collection itself is unchanged. To keep a copy, back it up from Import / "
                        "Export.")
                        .arg(text)));
        });
        watcher->setFuture(QtConcurrent::run([path] {
            const Result<QString> taken = Snapshots::take(path);
            return taken.ok() ? Outcome{true, taken.value()}
                              : Outcome{false, taken.error().message};
        }));
    });
}

} // namespace StoreCommands
