#include "screens/exchange/ExportViewController.h"

#include "exchange/ExchangeWriter.h"
#include "platform/Platform.h"
#include "platform/core/Console.h"
#include "platform/core/Files.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "screens/Application.h"

#include <QFile>
#include <QPointer>
#include <QVBoxLayout>

namespace {
const QString kFileName = QStringLiteral("Pelvane.csv");
}

ExportViewController::ExportViewController(QWidget* parent)
    : ViewController(parent)
    , ExportButton(new QPushButton(tr("Create Export File"), this))
    , SaveButton(new QPushButton(tr("Save To Files"), this))
    , EmailButton(new QPushButton(tr("Email File"), this))
    , ExportTextView(new TextView(this))
    , HelpTextView(new TextView(this))
    , ProgressView_(new ProgressView(this))
    , activityIndicator(new ActivityIndicator(this)) {
    ExportButton->setObjectName(QStringLiteral("ExportButton"));
    SaveButton->setObjectName(QStringLiteral("SaveButton"));
    EmailButton->setObjectName(QStringLiteral("EmailButton"));
    ExportTextView->setObjectName(QStringLiteral("ExportTextView"));
    HelpTextView->setObjectName(QStringLiteral("HelpTextView"));
    ExportTextView->setAccessibleName(tr("Contents of the export file"));
    HelpTextView->setAccessibleName(tr("How to export"));
    ExportTextView->setReadOnly(true);
    HelpTextView->setReadOnly(true);
    ExportTextView->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 16);
    layout->addWidget(HelpTextView, 2);
    layout->addWidget(ExportButton);
    layout->addWidget(ProgressView_);
    layout->addWidget(ExportTextView, 3);
    layout->addWidget(SaveButton);
    layout->addWidget(EmailButton);
    for (QPushButton* b : {ExportButton, SaveButton, EmailButton})
        b->setMinimumHeight(44);
    connect(ExportButton, &QPushButton::clicked, this, &ExportViewController::CreateUpdateFile);
    connect(SaveButton, &QPushButton::clicked, this, &ExportViewController::SaveToFiles);
    connect(EmailButton, &QPushButton::clicked, this, &ExportViewController::WriteTextFile);
}

void ExportViewController::viewDidLoad() {
    setTitle(tr("Export Coins"));
    DarkMode = Appearance::isDark();
    for (QPushButton* b : {ExportButton, SaveButton, EmailButton})
        Styling::round(b, 10, 2, Qt::black);
    const QColor border = DarkMode ? Qt::white : Qt::black;
    Styling::round(ExportTextView, 5, 1, border);
    Styling::round(HelpTextView, 5, 1, border);
    SaveButton->setEnabled(false);
    EmailButton->setEnabled(false);
    activityIndicator->raise();
    HelpTextView->setText(
        tr("Step 1: Create the Export File\n"
           "Step 2: Option 1: Click 'Save To Files' button\n"
           "             Option 2: Click the Email File button to email the file to "
           "yourself and then from your email save the file to your iCloud Drive. "
           "There are size limits to email attachments for most carriers."));
}

void ExportViewController::resizeEvent(QResizeEvent* event) {
    ViewController::resizeEvent(event);
    activityIndicator->move((width() - activityIndicator->width()) / 2,
                            (height() - activityIndicator->height()) / 2);
}

void ExportViewController::CreateUpdateFile() {
    activityIndicator->startAnimating();
    ExportButton->setEnabled(false);
    ExportTextView->setText(QString());
    managedObjectContext = Application::viewContext();
    const Result<QList<CoinPtr>> fetched = Exchange::coinsInFileOrder(*managedObjectContext);
    theEntryList.clear();
    for (const CoinPtr& coin : fetched.valueOr({}))
        theEntryList.append(coin);
    ExportTextView->setText(QString());
    ProgressView_->setProgress(0);
    progress.completedUnitCount = 0;

    // The bar moves after the build has returned: each coin queues its step on the UI thread.
    QPointer<ExportViewController> self(this);
    const auto progressStep = [self](int, int) {
        QMetaObject::invokeMethod(
            self,
            [self] {
                if (!self)
                    return;
                self->progress.completedUnitCount += 1;
                self->ProgressView_->setProgress(float(self->progress.fractionCompleted()), true);
            },
            Qt::QueuedConnection);
    };
    const Result<QByteArray> text =
        fetched.ok() ? Exchange::exchangeText(theEntryList, progressStep) : fetched.error();
    if (!text.ok()) {
        // A file from a collection read in part would replace a good backup: nothing is
        // offered to save.
        after(1, [this] { activityIndicator->stopAnimating(); });
        present(AlertController::okAlert(
            tr("Data Export File"),
            tr("The collection cannot be read: %1").arg(text.error().message)));
        return;
    }
    DataString = QString::fromUtf8(text.value());
    ExportTextView->setText(*DataString);
    EmailButton->setEnabled(true);
    SaveButton->setEnabled(true);
    ExportButton->setEnabled(false);
    after(1000, [this] {
        present(AlertController::okAlert(tr("Data Export File"),
                                         tr("Process Complete - File Ready to Save "
                                            "To Files or Email")));
    });
    after(1, [this] { activityIndicator->stopAnimating(); });
    EmailButton->setEnabled(true);
}

void ExportViewController::SaveToFiles() {
    const QString path = Files::temporaryDirectory() + kFileName;
    Console::log(path);
    if (const Result<void> written =
            Files::writeTextAtomically(path, DataString.value_or(QString()));
        !written.ok()) {
        Console::log(written.error().message);
        return;
    }
    ShareItem file;
    file.url = QUrl::fromLocalFile(path);
    Platform::shareSheet().present(
        {file},
        {ShareSheet::AirDrop, ShareSheet::AddToReadingList, ShareSheet::Mail, ShareSheet::Message,
         ShareSheet::PostToFacebook, ShareSheet::PostToTwitter, ShareSheet::MarkupAsPDF,
         ShareSheet::CopyToPasteboard, ShareSheet::Print},
        this);
}

void ExportViewController::WriteTextFile() {
    const QString text = ExportTextView->text();
    // No such file ships with the program, so the temporary folder is always the place.
    const QString path = Files::temporaryDirectory() + kFileName;
    // The text is shown as the file holds it; a file that could not be written is said, and
    // the mail then carries the file as it was.
    if (const Result<void> written = Files::writeTextAtomically(path, text); !written.ok())
        Console::log(written.error().message);
    if (const Result<QString> readBack = Files::readText(path); readBack.ok())
        ExportTextView->setText(readBack.value());
    if (Platform::mail().canSendMail()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return;
        MailMessage message;
        message.subject = tr("Pelvane Update Text File");
        message.body = tr("Attachment: Pelvane Text File");
        message.attachment = file.readAll();
        message.mimeType = QStringLiteral("csv");
        message.fileName = kFileName;
        Platform::mail().compose(message, this, {});
    } else {
        auto* alert =
            AlertController::okAlert(tr("Sending Email"), tr("Email not Setup or Unavailable"));
        alert->setSourceView(EmailButton);
        present(alert);
    }
}
