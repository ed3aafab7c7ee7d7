#include "screens/exchange/DamagedStoreBanner.h"

#include "model/Backup.h"
#include "model/Snapshots.h"
#include "platform/core/Console.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/ViewController.h"
#include "platform/kit/Window.h"
#include "screens/exchange/RestoreFlow.h"

#include <QCoreApplication>
#include <QFrame>
#include <QFutureWatcher>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QtConcurrent/QtConcurrentRun>

namespace DamagedStoreBanner {

namespace {
QString tr(const char* text) {
    return QCoreApplication::translate("DamagedStoreBanner", text);
}

struct Finding {
    QString problem; // empty: the store is whole
    QString snapshot, date;
    qint64 coins = 0;
};

// The store checked, and when it is damaged the newest snapshot that passes every check.
Finding check(const QString& storePath) {
    Finding out;
    out.problem = Backup::damageOf(storePath).value_or(QString());
    if (out.problem.isEmpty())
        return out;
    for (const Snapshots::Entry& e : Snapshots::list(storePath)) {
        const Result<Backup::StoreInfo> info = Backup::inspect(e.path);
        if (!info.ok())
            continue;
        out.snapshot = e.path;
        out.date = tr("%1 at %2")
                       .arg(QLocale().toString(e.modified.date(), QLocale::LongFormat),
                            QLocale().toString(e.modified.time(), QLocale::ShortFormat));
        out.coins = info.value().coins;
        break;
    }
    return out;
}
} // namespace

QWidget* make(Window* window, const QString& snapshot, const QString& date, qint64 coins) {
    auto* banner = new QFrame;
    banner->setObjectName(QStringLiteral("DamagedStoreBanner"));
    banner->setFrameShape(QFrame::StyledPanel);
    banner->setAutoFillBackground(true);
    QPalette palette = banner->palette();
    palette.setColor(QPalette::Window, QColor(0xfd, 0xe2, 0xe1));
    palette.setColor(QPalette::WindowText, Qt::black);
    banner->setPalette(palette);
    auto* layout = new QHBoxLayout(banner);
    layout->setContentsMargins(12, 6, 12, 6);
    auto* texts = new QVBoxLayout;
    auto* title = new QLabel(tr("Your collection file is damaged"), banner);
    title->setObjectName(QStringLiteral("DamagedTitle"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto* detail = new QLabel(
        snapshot.isEmpty()
            ? tr("There is no whole snapshot to go back to. Restore a backup from Import / "
                 "Export; the damaged file is moved aside, not deleted.")
            : tr("The newest whole snapshot is from %1 and holds %2. Restoring it moves the "
                 "damaged file aside, not deleted.")
                  .arg(date, RestoreFlow::coins(coins)),
        banner);
    detail->setObjectName(QStringLiteral("DamagedDetail"));
    detail->setWordWrap(true);
    texts->addWidget(title);
    texts->addWidget(detail);
    layout->addLayout(texts, 1);
    if (!snapshot.isEmpty()) {
        auto* restore = new QPushButton(tr("Restore Snapshot\u2026"), banner);
        restore->setObjectName(QStringLiteral("RestoreSnapshotButton"));
        restore->setAccessibleName(tr("Restore the snapshot from %1").arg(date));
        layout->addWidget(restore);
        QPointer<QFrame> self(banner);
        QObject::connect(restore, &QPushButton::clicked, banner, [window, snapshot, self] {
            ViewController* screen = window->frontScreen();
            if (!screen)
                return;
            RestoreFlow::start(screen, snapshot, {}, [self] {
                if (self)
                    self->deleteLater();
            });
        });
    }
    return banner;
}

void checkSoon(Window* window, const QString& storePath) {
    // Once the window has painted: the check reads the whole file, on a worker.
    QTimer::singleShot(0, window, [window, storePath] {
        auto* watcher = new QFutureWatcher<Finding>(window);
        QObject::connect(watcher, &QFutureWatcher<Finding>::finished, window, [window, watcher] {
            const Finding found = watcher->result();
            watcher->deleteLater();
            if (found.problem.isEmpty())
                return;
            Console::log(QStringLiteral("The collection file is damaged: %1").arg(found.problem));
            window->showBanner(make(window, found.snapshot, found.date, found.coins), nullptr);
        });
        watcher->setFuture(QtConcurrent::run(check, storePath));
    });
}

} // namespace DamagedStoreBanner
