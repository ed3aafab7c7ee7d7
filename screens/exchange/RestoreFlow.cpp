#include "screens/exchange/RestoreFlow.h"

#include "model/PersistentContainer.h"
#include "model/Restore.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/ViewController.h"
#include "screens/Application.h"

#include <QCoreApplication>
#include <QFutureWatcher>
#include <QLocale>
#include <QPointer>
#include <QtConcurrent/QtConcurrentRun>

namespace RestoreFlow {

namespace {
QString tr(const char* text) {
    return QCoreApplication::translate("RestoreFlow", text);
}

struct Checked {
    std::shared_ptr<Backup::Candidate> candidate;
    QString problem;         // why the file cannot be restored
    qint64 held = 0;         // the coins the collection holds now
    bool unreadable = false; // the collection cannot be read
};

void restore(QPointer<ViewController> screen, const std::shared_ptr<Backup::Candidate>& candidate,
             const std::function<void()>& done) {
    // The store is closed and opened again on this thread: nothing else may use it meanwhile.
    const Result<Backup::Restored> restored =
        Application::delegate().persistentContainer().restoreFrom(*candidate);
    if (!screen)
        return;
    if (!restored.ok()) {
        screen->present(AlertController::okAlert(tr("Restore Failed"), restored.error().message));
        return;
    }
    QString text = tr("Restored %1.").arg(coins(restored.value().coinsAfter));
    if (restored.value().damaged)
        text += QLatin1Char(' ') +
                tr("The damaged collection file was kept as %1.").arg(restored.value().snapshot);
    if (done)
        done();
    // Every screen behind this one showed the collection that is gone.
    NavigationController* nav = screen->navigationController();
    if (!nav) {
        screen->present(AlertController::okAlert(tr("Restore Complete"), text));
        return;
    }
    nav->popToRootViewController(false);
    if (ViewController* root = nav->topViewController())
        root->present(AlertController::okAlert(tr("Restore Complete"), text));
}
} // namespace

QString coins(qint64 n) {
    return QStringLiteral("%1 %2").arg(QLocale().toString(n), n == 1 ? tr("coin") : tr("coins"));
}

void start(ViewController* screen, const QString& file, std::function<void(bool)> busy,
           std::function<void()> done) {
    if (busy)
        busy(true);
    PersistentContainer& container = Application::delegate().persistentContainer();
    const QString store = container.storePath();
    QPointer<ViewController> self(screen);
    auto* watcher = new QFutureWatcher<Checked>(screen);
    QObject::connect(watcher, &QFutureWatcher<Checked>::finished, screen, [=] {
        const Checked checked = watcher->result();
        watcher->deleteLater();
        if (busy)
            busy(false);
        if (!checked.candidate) {
            self->present(AlertController::okAlert(tr("Restore Failed"), checked.problem));
            return;
        }
        const QString backup = coins(checked.candidate->info().coins);
        auto* ask = new AlertController(
            tr("Restore From Backup?"),
            checked.unreadable
                ? tr("The backup holds %1; the collection cannot be read. Its file is moved "
                     "aside whole, not deleted, and the backup takes its place.")
                      .arg(backup)
                : tr("The backup holds %1; the collection holds %2. The collection as it is "
                     "now is kept as a snapshot in Backups/.")
                      .arg(backup, coins(checked.held)));
        const std::shared_ptr<Backup::Candidate> candidate = checked.candidate;
        ask->addAction(tr("Restore"), AlertController::ActionStyle::Destructive,
                       [self, candidate, done] { restore(self, candidate, done); });
        ask->addAction(tr("Cancel"), AlertController::ActionStyle::Cancel);
        self->present(ask);
    });
    // Copying and checking a large file reads all of it: not on the window's thread.
    watcher->setFuture(QtConcurrent::run([store, file] {
        Checked out;
        const auto candidate = Backup::prepare(store, file, &PersistentContainer::upgradeCopy);
        if (!candidate.ok()) {
            out.problem = candidate.error().message;
            return out;
        }
        out.candidate = candidate.value();
        const Result<qint64> held = Backup::coinCount(store);
        out.unreadable = !held.ok() || Backup::damageOf(store);
        out.held = held.valueOr(0);
        return out;
    }));
}

} // namespace RestoreFlow
