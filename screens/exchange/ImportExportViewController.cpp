#include "screens/exchange/ImportExportViewController.h"

#include "model/Backup.h"
#include "model/PersistentContainer.h"
#include "model/Snapshots.h"
#include "platform/Platform.h"
#include "platform/core/Files.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/Views.h"
#include "screens/Application.h"
#include "screens/exchange/RestoreFlow.h"

#include <QAction>
#include <QDate>
#include <QDir>
#include <QFutureWatcher>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <QtConcurrent/QtConcurrentRun>

namespace {
QStringList backupFilters() {
    return {ImportExportViewController::tr("Pelvane backups (*.sqlite)"),
            ImportExportViewController::tr("All files (*)")};
}

// Work for a worker thread, its answer handed back to the screen if the screen is still there.
template <typename T, typename Work, typename Done>
void inBackground(QObject* screen, Work work, Done done) {
    auto* watcher = new QFutureWatcher<T>(screen);
    QObject::connect(watcher, &QFutureWatcher<T>::finished, screen, [watcher, done] {
        done(watcher->result());
        watcher->deleteLater();
    });
    watcher->setFuture(QtConcurrent::run(std::move(work)));
}

// (done, the number of coins or why not): what a worker hands back.
using Outcome = std::pair<bool, QString>;
} // namespace

ImportExportViewController::ImportExportViewController(QWidget* parent)
    : ViewController(parent)
    , ExportAction(new QAction(tr("Export Coins"), this))
    , ImportAction(new QAction(tr("Import Coins"), this))
    , BackupAction(new QAction(tr("Back Up Collection\u2026"), this))
    , RestoreAction(new QAction(tr("Restore From Backup\u2026"), this))
    , ExportButton(new QPushButton(tr("Export Coins"), this))
    , ImportButton(new QPushButton(tr("Import Coins"), this))
    , BackupButton(new QPushButton(tr("Back Up Collection\u2026"), this))
    , RestoreButton(new QPushButton(tr("Restore From Backup\u2026"), this))
    , BackupProgressView(new ProgressView(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    auto* note = new QLabel(tr("Move the whole collection to another device: export "
                               "it here, import the file there."),
                            this);
    note->setWordWrap(true);
    layout->addWidget(note);
    layout->addSpacing(12);
    layout->addWidget(ExportButton);
    layout->addWidget(ImportButton);
    layout->addSpacing(24);
    auto* copies = new QLabel(tr("Keep an exact copy of the collection, every picture "
                                 "included, or put one back."),
                              this);
    copies->setWordWrap(true);
    layout->addWidget(copies);
    layout->addSpacing(12);
    layout->addWidget(BackupButton);
    layout->addWidget(RestoreButton);
    layout->addWidget(BackupProgressView);
    layout->addStretch();
    BackupProgressView->setVisible(false);
    for (QPushButton* b : {ExportButton, ImportButton, BackupButton, RestoreButton})
        b->setMinimumHeight(48);
    connect(ExportAction, &QAction::triggered, this, [this] { performSegue("ExportCoins"); });
    connect(ImportAction, &QAction::triggered, this, [this] { performSegue("ImportCoins"); });
    connect(BackupAction, &QAction::triggered, this, &ImportExportViewController::BackUpCollection);
    connect(RestoreAction, &QAction::triggered, this,
            &ImportExportViewController::RestoreFromBackup);
    // Each button presses its action and is enabled as the action is.
    using Pair = std::pair<QPushButton*, QAction*>;
    for (auto [button, action] :
         {Pair{ExportButton, ExportAction}, Pair{ImportButton, ImportAction},
          Pair{BackupButton, BackupAction}, Pair{RestoreButton, RestoreAction}}) {
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        connect(action, &QAction::changed, button,
                [button, action] { button->setEnabled(action->isEnabled()); });
    }
}

void ImportExportViewController::viewDidLoad() {
    setTitle(tr("Import / Export"));
    for (QPushButton* b : {ExportButton, ImportButton, BackupButton, RestoreButton})
        Styling::round(b, 10, 2, Qt::black);
}

void ImportExportViewController::setBusy(bool busy) {
    busy_ = busy;
    for (QAction* a : {ExportAction, ImportAction, BackupAction, RestoreAction})
        a->setEnabled(!busy);
    BackupProgressView->setVisible(busy);
    BackupProgressView->setProgress(0);
}

void ImportExportViewController::BackUpCollection() {
    if (busy_)
        return;
    const QString suggested = QDir(Files::documentsDirectory())
                                  .filePath(QStringLiteral("Pelvane-%1.sqlite")
                                                .arg(QDate::currentDate().toString(Qt::ISODate)));
    QPointer<ImportExportViewController> self(this);
    Platform::documentPicker().save(this, suggested, backupFilters(),
                                    [self](const QString& file) {
                                        if (self)
                                            self->backUpTo(file);
                                    },
                                    {});
}

void ImportExportViewController::backUpTo(const QString& file) {
    setBusy(true);
    const QString store = Application::delegate().persistentContainer().storePath();
    QPointer<ProgressView> bar(BackupProgressView);
    // Pages are counted on the worker; the bar follows on this thread.
    auto progress = [bar](int done, int total) {
        if (total > 0)
            QMetaObject::invokeMethod(bar, [bar, fraction = float(done) / float(total)] {
                if (bar)
                    bar->setProgress(fraction);
            });
    };
    inBackground<Outcome>(
        this,
        [store, file, progress] {
            const Result<qint64> written = Backup::write(store, file, progress);
            return written.ok() ? Outcome{true, RestoreFlow::coins(written.value())}
                                : Outcome{false, written.error().message};
        },
        [this, file](const Outcome& outcome) {
            setBusy(false);
            present(outcome.first ? AlertController::okAlert(
                                        tr("Backup Complete"),
                                        tr("Backed up %1 to %2").arg(outcome.second, file))
                                  : AlertController::okAlert(tr("Backup Failed"), outcome.second));
        });
}

void ImportExportViewController::RestoreFromBackup() {
    if (busy_)
        return;
    // A restore often puts a snapshot back, and their folder lies beside the store, inside a
    // hidden one the dialog would not show: it starts there.
    const QString snapshots =
        Snapshots::folder(Application::delegate().persistentContainer().storePath());
    const QString start = QDir().mkpath(snapshots) ? snapshots : QDir::homePath();
    QPointer<ImportExportViewController> self(this);
    Platform::documentPicker().openIn(this, start, backupFilters(),
                                      [self](const QString& file) {
                                          if (self)
                                              self->checkBeforeRestoring(file);
                                      },
                                      {});
}

void ImportExportViewController::checkBeforeRestoring(const QString& file) {
    RestoreFlow::start(this, file, [this](bool busy) { setBusy(busy); });
}
