// The breakdown's share and print actions: the PDF report of the coins shown, and the print
// screen of the group.
#include "platform/Platform.h"
#include "reports/CoinDocument.h"
#include "reports/GroupReport.h"
#include "screens/TextMessageAlert.h"
#include "screens/groups/BreakdownTableViewController.h"

#include <QCoreApplication>
#include <QFutureWatcher>
#include <QPointer>
#include <QTextDocument>
#include <QThread>
#include <QtConcurrent>

void BreakdownTableViewController::updateShareButton() {
    // An empty list has no first coin to name the report after.
    const bool enabled = !listInUse().isEmpty() && !reportRunning_;
    BarButtonItem& share = navigationItem().rightItems[0];
    if (share.enabled == enabled)
        return;
    share.enabled = enabled;
    updateNavigationBar();
}

void BreakdownTableViewController::PrintButtonClicked() {
    performSegue(QStringLiteral("PrintCoins"), this);
}

void BreakdownTableViewController::ShareCoinButtonClicked() {
    if (!Platform::messages().canSendText()) {
        TextMessageAlert::presentLater(this);
        return;
    }
    const QList<CoinPtr> coins = listInUse();
    if (coins.isEmpty() || reportRunning_)
        return;
    CoinString = GroupReport::report(*group_, coins, width() / 6.0,
                                     CoinDocument::originalsIn(*managedObjectContext));
    if (coins.size() < ReportInBackgroundFrom) {
        writePdf(CoinDocument::pdf(*CoinString));
        shareReport();
        return;
    }
    // A long report is laid out and drawn in a worker, so the window keeps repainting and shows
    // how far it has come; the bytes are the same.
    reportRunning_ = true;
    updateShareButton();
    ProgressView_->setProgress(0);
    ProgressView_->show();
    QPointer<BreakdownTableViewController> self(this);
    // The worker is given the document itself, with no thread, and nothing here keeps it: nothing
    // of it is ever touched from two threads, and it is not copied first.
    QTextDocument* given = CoinString.release();
    given->moveToThread(nullptr);
    auto* watcher = new QFutureWatcher<QByteArray>(this);
    connect(watcher, &QFutureWatcher<QByteArray>::finished, this, [this, watcher] {
        watcher->deleteLater();
        reportRunning_ = false;
        ProgressView_->hide();
        updateShareButton();
        writePdf(watcher->result());
        shareReport();
    });
    watcher->setFuture(QtConcurrent::run([given, self] {
        given->moveToThread(QThread::currentThread());
        const std::unique_ptr<QTextDocument> document(given);
        return CoinDocument::pdf(*document, [self](int done, int all) {
            QMetaObject::invokeMethod(
                qApp,
                [self, done, all] {
                    if (self)
                        self->ProgressView_->setProgress(float(done) / float(all), true);
                },
                Qt::QueuedConnection);
        });
    }));
}

void BreakdownTableViewController::writePdf(const QByteArray& bytes) {
    CoinDocument::writePdfFile(outputFileURL.toLocalFile(), bytes);
}

void BreakdownTableViewController::shareReport() {
    ShareItem file;
    file.url = outputFileURL;
    Platform::shareSheet().present({file}, {}, this);
}
