#include "platform/DesktopServices.h"

#include "platform/core/Files.h"
#include "platform/core/NativeFiles.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Window.h"

#include <QApplication>
#include <QCamera>
#include <QClipboard>
#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QImageCapture>
#include <QLabel>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QVideoWidget>

namespace {
// The program's window to tell the user in: the active one, else the first main window shown.
QWidget* programWindow() {
    if (QWidget* active = QApplication::activeWindow(); active && qobject_cast<Window*>(active))
        return active;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<Window*>(w) && w->isVisible())
            return w;
    return QApplication::activeWindow();
}

bool openOrTell(const QUrl& url, const DesktopWebBrowser::Opener& opener) {
    if (opener ? opener(url) : QDesktopServices::openUrl(url))
        return true;
    DesktopServices::tellUnavailable(
        url.isLocalFile() ? QCoreApplication::translate("DesktopServices", "Can't Open File")
                          : QCoreApplication::translate("DesktopServices", "Can't Open Web Page"),
        url.isLocalFile()
            ? QCoreApplication::translate("DesktopServices",
                                          "No program is set up on this computer to open %1.")
                  .arg(url.toLocalFile())
            : QCoreApplication::translate("DesktopServices",
                                          "No web browser is set up on this computer to open %1.")
                  .arg(url.toDisplayString()));
    return false;
}
} // namespace

namespace DesktopServices {
void tellUnavailable(const QString& title, const QString& message) {
    if (QWidget* window = programWindow())
        AlertController::okAlert(title, message)->showOver(window);
}
} // namespace DesktopServices

bool DesktopMailComposer::canSendMail() {
    if (QStandardPaths::findExecutable(QStringLiteral("xdg-email")).isEmpty())
        return false;
    // xdg-email hands the message to the program set up for mailto: addresses; with none it
    // fails after the fact, so ask first.
    if (QStandardPaths::findExecutable(QStringLiteral("xdg-mime")).isEmpty())
        return true;
    QProcess query;
    query.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"),
                                             QStringLiteral("x-scheme-handler/mailto")});
    if (!query.waitForFinished(3000)) {
        query.kill();
        query.waitForFinished(1000);
        return true; // slow to answer is no proof of absence
    }
    return query.exitStatus() == QProcess::NormalExit && query.exitCode() == 0 &&
           !query.readAllStandardOutput().trimmed().isEmpty();
}

void DesktopMailComposer::compose(const MailMessage& m, QWidget*, std::function<void()> finished) {
    QStringList args{QStringLiteral("--utf8")};
    if (!m.subject.isEmpty())
        args << QStringLiteral("--subject") << m.subject;
    args << QStringLiteral("--body") << m.body;
    if (!m.attachment.isEmpty()) {
        const QString dir = QDir::tempPath() + QStringLiteral("/pelvane-mail-") +
                            QString::number(QDateTime::currentMSecsSinceEpoch());
        QDir().mkpath(dir);
        QFile f(dir + QLatin1Char('/') + m.fileName);
        if (f.open(QIODevice::WriteOnly) && f.write(m.attachment) == m.attachment.size())
            args << QStringLiteral("--attach") << f.fileName();
    }
    args << m.recipients;
    if (!QProcess::startDetached(QStringLiteral("xdg-email"), args))
        DesktopServices::tellUnavailable(
            QCoreApplication::translate("DesktopServices", "Can't Send Email"),
            QCoreApplication::translate("DesktopServices",
                                        "The mail program of this computer could "
                                        "not be started."));
    if (finished)
        finished();
}

void DesktopShareSheet::present(const QList<ShareItem>& items, const QStringList& excluded,
                                QWidget* anchor) {
    auto* menu = new QMenu(anchor);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const ShareItem& item : items) {
        if (item.url.isLocalFile()) {
            const QString path = item.url.toLocalFile();
            menu->addAction(QCoreApplication::translate("DesktopServices", "Save As..."), [anchor,
                                                                                           path] {
                auto* dialog = new QFileDialog(
                    anchor, QCoreApplication::translate("DesktopServices", "Save As"),
                    QDir::homePath() + QLatin1Char('/') + QFileInfo(path).fileName());
                dialog->setAcceptMode(QFileDialog::AcceptSave);
                dialog->setAttribute(Qt::WA_DeleteOnClose);
                QObject::connect(
                    dialog, &QFileDialog::fileSelected, [anchor, path](const QString& target) {
                        // Written beside the chosen file and renamed: a failed copy
                        // leaves it as it was.
                        const Result<void> copied = Files::copyAtomically(path, target);
                        if (copied.ok())
                            return;
                        auto* box = new QMessageBox(
                            QMessageBox::Warning,
                            QCoreApplication::translate("DesktopServices", "Save As"),
                            QCoreApplication::translate("DesktopServices", "Cannot write %1: %2")
                                .arg(target, copied.error().message),
                            QMessageBox::Ok, anchor);
                        box->setAttribute(Qt::WA_DeleteOnClose);
                        box->open();
                    });
                dialog->open();
            });
            menu->addAction(QCoreApplication::translate("DesktopServices", "Open"),
                            [path] { openOrTell(QUrl::fromLocalFile(path), {}); });
        } else if (!item.url.isEmpty()) {
            menu->addAction(QCoreApplication::translate("DesktopServices", "Open"),
                            [url = item.url] { openOrTell(url, {}); });
        }
        if (!excluded.contains(ShareSheet::CopyToPasteboard)) {
            if (!item.image.isNull())
                menu->addAction(QCoreApplication::translate("DesktopServices", "Copy"),
                                [img = item.image] { QApplication::clipboard()->setImage(img); });
            else if (!item.text.isEmpty() || !item.url.isEmpty())
                menu->addAction(QCoreApplication::translate("DesktopServices", "Copy"),
                                [t = item.text.isEmpty() ? item.url.toString() : item.text] {
                                    QApplication::clipboard()->setText(t);
                                });
            else if (!item.data.isEmpty())
                menu->addAction(QCoreApplication::translate("DesktopServices", "Copy"),
                                [d = item.data] {
                                    auto* mime = new QMimeData;
                                    mime->setImageData(QImage::fromData(d));
                                    QApplication::clipboard()->setMimeData(mime);
                                });
        }
    }
    QWidget* at = anchor ? anchor : QApplication::activeWindow();
    menu->popup(at ? at->mapToGlobal(at->rect().center()) : QPoint());
}

DesktopWebBrowser::DesktopWebBrowser(Opener opener)
    : opener_(std::move(opener)) {}

void DesktopWebBrowser::openInApp(const QUrl& url) {
    openOrTell(url, opener_);
}
void DesktopWebBrowser::openExternally(const QUrl& url) {
    openOrTell(url, opener_);
}

bool DesktopImagePicker::isCameraAvailable() {
    return !QMediaDevices::videoInputs().isEmpty();
}

void DesktopImagePicker::presentCamera(QWidget* parent, std::function<void(QImage)> taken,
                                       std::function<void()> cancelled) {
    auto* sheet = new QWidget(parent ? parent->window() : nullptr, Qt::Window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowTitle(QCoreApplication::translate("DesktopServices", "Camera"));
    auto* layout = new QVBoxLayout(sheet);
    auto* view = new QVideoWidget(sheet);
    auto* shoot =
        new QPushButton(QCoreApplication::translate("DesktopServices", "Take Picture"), sheet);
    auto* cancel = new QPushButton(QCoreApplication::translate("DesktopServices", "Cancel"), sheet);
    layout->addWidget(view, 1);
    layout->addWidget(shoot);
    layout->addWidget(cancel);
    auto* session = new QMediaCaptureSession(sheet);
    auto* camera = new QCamera(sheet);
    auto* capture = new QImageCapture(sheet);
    session->setCamera(camera);
    session->setImageCapture(capture);
    session->setVideoOutput(view);
    QObject::connect(shoot, &QPushButton::clicked, capture, [capture] { capture->capture(); });
    QObject::connect(capture, &QImageCapture::imageCaptured, sheet,
                     [sheet, taken](int, const QImage& img) {
                         sheet->close();
                         if (taken)
                             taken(img);
                     });
    QObject::connect(cancel, &QPushButton::clicked, sheet, [sheet, cancelled] {
        sheet->close();
        if (cancelled)
            cancelled();
    });
    camera->start();
    sheet->resize(480, 420);
    sheet->show();
}

namespace {
// A file dialog that answers once and goes: non-blocking, as every dialog of the program.
QFileDialog* fileDialog(QWidget* parent, const QString& start, const QStringList& nameFilters,
                        std::function<void(QString)> picked, std::function<void()> cancelled) {
    auto* dialog = new QFileDialog(parent, QString(), start);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (!nameFilters.isEmpty())
        dialog->setNameFilters(nameFilters);
    QObject::connect(dialog, &QFileDialog::fileSelected, [picked](const QString& f) {
        if (picked)
            picked(f);
    });
    QObject::connect(dialog, &QFileDialog::rejected, [cancelled] {
        if (cancelled)
            cancelled();
    });
    return dialog;
}
} // namespace

void DesktopDocumentPicker::save(QWidget* parent, const QString& suggestedPath,
                                 const QStringList& nameFilters,
                                 std::function<void(QString)> picked,
                                 std::function<void()> cancelled) {
    QFileDialog* dialog =
        fileDialog(parent, suggestedPath, nameFilters, std::move(picked), std::move(cancelled));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(suggestedPath);
    dialog->open();
}

void DesktopDocumentPicker::open(QWidget* parent, const QStringList& nameFilters,
                                 std::function<void(QString)> picked,
                                 std::function<void()> cancelled) {
    openIn(parent, QDir::homePath(), nameFilters, std::move(picked), std::move(cancelled));
}

void DesktopDocumentPicker::openIn(QWidget* parent, const QString& folder,
                                   const QStringList& nameFilters,
                                   std::function<void(QString)> picked,
                                   std::function<void()> cancelled) {
    QFileDialog* dialog =
        fileDialog(parent, folder, nameFilters, std::move(picked), std::move(cancelled));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->open();
}

void DesktopReviewRequester::requestReview(QWidget* screen) {
    auto* window = screen ? qobject_cast<Window*>(screen->window()) : nullptr;
    if (!window)
        return;
    auto* banner = new QFrame;
    banner->setObjectName(QStringLiteral("ReviewBanner"));
    banner->setFrameShape(QFrame::StyledPanel);
    banner->setAutoFillBackground(true);
    banner->setBackgroundRole(QPalette::AlternateBase);
    auto* layout = new QHBoxLayout(banner);
    layout->setContentsMargins(12, 6, 12, 6);
    auto* text =
        new QLabel(QCoreApplication::translate("DesktopServices", "Enjoying Pelvane?"), banner);
    QFont bold = text->font();
    bold.setBold(true);
    text->setFont(bold);
    layout->addWidget(text, 1);
    auto* later =
        new QPushButton(QCoreApplication::translate("DesktopServices", "Not Now"), banner);
    later->setObjectName(QStringLiteral("NotNowButton"));
    layout->addWidget(later);
    QObject::connect(later, &QPushButton::clicked, banner, &QObject::deleteLater);
    window->showBanner(banner, screen);
}

bool DesktopPhotoLibrary::save(const QImage& image) {
    // Into the data folder's Pictures with --data-dir, like every other file the program writes.
    const QString dir = Files::picturesDirectory();
    const QString stem = dir + QStringLiteral("Pelvane-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    // A second picture within the same second gets a name of its own, never the first's.
    QString path = stem + QStringLiteral(".jpg");
    for (int n = 2; Files::status(path).exists; ++n)
        path = stem + QStringLiteral("-%1.jpg").arg(n);
    const QByteArray bytes = ImageCoding::jpeg(image, 1.0);
    return !bytes.isEmpty() && Files::writeAtomically(path, bytes).ok();
}
