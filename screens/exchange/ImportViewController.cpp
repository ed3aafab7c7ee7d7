#include "screens/exchange/ImportViewController.h"
#include "platform/kit/FileDrop.h"

#include "exchange/ExchangeReader.h"
#include "exchange/PieceLimit.h"
#include "platform/Platform.h"
#include "platform/core/Console.h"
#include "platform/core/Files.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/Views.h"
#include "screens/Application.h"

#include <QFile>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QLabel>
#include <QPromise>
#include <QVBoxLayout>
#include <QtConcurrent/QtConcurrentRun>

#include <utility>

// What the reading thread hands back: the text for the merge, and what the text view shows.
struct ImportViewController::Loaded {
    std::optional<QByteArray> text;
    QString shown;
    QString error;
};

namespace {

// The text view shows each line with its pictures cut to a few characters: base64 means
// nothing to a reader, and the whole of it would be laid out and held a second time.
QString shownText(const QByteArray& utf8, QPromise<ImportViewController::Loaded>& promise) {
    constexpr qsizetype kLongField = 120, kShownStart = 24;
    QString shown;
    shown.reserve(qMin<qsizetype>(utf8.size(), 1 << 20));
    qsizetype start = 0, lastReport = 0;
    while (start < utf8.size()) {
        qsizetype end = utf8.indexOf('^', start);
        const qsizetype lineEnd = utf8.indexOf('\n', start);
        if (end < 0 || (lineEnd >= 0 && lineEnd < end))
            end = lineEnd;
        if (end < 0)
            end = utf8.size();
        const QByteArrayView field(utf8.constData() + start, end - start);
        if (field.size() > kLongField && !field.contains(' '))
            shown += QString::fromUtf8(field.first(kShownStart)) + QChar(0x2026);
        else
            shown += QString::fromUtf8(field);
        if (end < utf8.size())
            shown += QChar(uchar(utf8[end]));
        start = end + 1;
        if (start - lastReport > (1 << 22)) {
            lastReport = start;
            promise.setProgressValue(500 + int(500 * start / utf8.size()));
        }
    }
    return shown;
}

void readFile(QPromise<ImportViewController::Loaded>& promise, const QString& path) {
    ImportViewController::Loaded loaded;
    promise.setProgressRange(0, 1000);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        loaded.error = file.errorString();
        promise.addResult(std::move(loaded));
        return;
    }
    QByteArray bytes;
    const qint64 size = file.size();
    if (size > 0)
        bytes.reserve(size);
    constexpr qint64 kChunk = 4 << 20;
    while (!file.atEnd()) {
        const qsizetype had = bytes.size();
        bytes.resize(had + kChunk);
        const qint64 got = file.read(bytes.data() + had, kChunk);
        bytes.resize(had + qMax<qint64>(got, 0));
        if (got <= 0)
            break;
        if (size > 0)
            promise.setProgressValue(int(qMin<qint64>(500, 500 * bytes.size() / size)));
    }
    loaded.text = Exchange::utf8Text(std::move(bytes));
    if (!loaded.text)
        loaded.error = QStringLiteral("The file is not text in a known encoding.");
    else
        loaded.shown = shownText(*loaded.text, promise);
    promise.addResult(std::move(loaded));
}

} // namespace

ImportViewController::ImportViewController(QWidget* parent)
    : ViewController(parent)
    , LoadFileButton(new QPushButton(tr("Load File"), this))
    , ImportButton(new QPushButton(tr("Import File"), this))
    , ImportTextView(new TextView(this))
    , HelpTextView(new TextView(this))
    , ImportProgressView(new ProgressView(this)) {
    LoadFileButton->setObjectName(QStringLiteral("LoadFileButton"));
    ImportButton->setObjectName(QStringLiteral("ImportButton"));
    ImportTextView->setObjectName(QStringLiteral("ImportTextView"));
    ImportTextView->setAccessibleName(tr("Contents of the file"));
    HelpTextView->setObjectName(QStringLiteral("HelpTextView"));
    HelpTextView->setAccessibleName(tr("How to import"));
    ImportTextView->setReadOnly(true);
    HelpTextView->setReadOnly(true);
    ImportTextView->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 16);
    layout->addWidget(HelpTextView, 1);
    layout->addWidget(LoadFileButton);
    layout->addWidget(ImportTextView, 3);
    layout->addWidget(ImportProgressView);
    layout->addWidget(ImportButton);
    ImportProgressView->setObjectName(QStringLiteral("ImportProgressView"));
    ImportProgressView->hide();
    for (QPushButton* b : {LoadFileButton, ImportButton})
        b->setMinimumHeight(44);
    connect(LoadFileButton, &QPushButton::clicked, this, &ImportViewController::LoadFile);
    connect(ImportButton, &QPushButton::clicked, this, &ImportViewController::ImportTextFile);
    // An exchange file dropped on the screen loads as if chosen with Load File.
    FileDrop::accept(
        this, [this](const QString&) { return LoadFileButton->isEnabled(); },
        [this](const QString& path) { documentPicked(path); });
}

void ImportViewController::viewDidLoad() {
    setTitle(tr("Import Coins"));
    DarkMode = Appearance::isDark();
    for (QPushButton* b : {LoadFileButton, ImportButton})
        Styling::round(b, 10, 2, Qt::black);
    const QColor border = DarkMode ? Qt::white : Qt::black;
    Styling::round(ImportTextView, 5, 1, border);
    Styling::round(HelpTextView, 5, 1, border);
    wrongFile = false;
    ImportButton->setEnabled(false);
    HelpTextView->setText(tr("YOU CAN ONLY IMPORT THE FILE CREATED BY THIS APP.\n"
                             "1: Select the file you saved to your iCloud drive\n"
                             "2: Import the file into your device"));
}

void ImportViewController::LoadFile() {
    Platform::documentPicker().open(this, {tr("Exchange files (*.csv)"), tr("All files (*)")},
                                    [this](const QString& path) { documentPicked(path); }, {});
}

ImportViewController::~ImportViewController() = default;

void ImportViewController::setBusy(bool busy) {
    busy_ = busy;
    ImportProgressView->setProgress(0);
    ImportProgressView->setVisible(busy);
    // Leaving half way would drop the rest of the file.
    navigationItem().hidesBackButton = busy;
    updateNavigationBar();
}

void ImportViewController::documentPicked(const QString& path) {
    if (busy_)
        return;
    filename = QFileInfo(path).fileName();
    LoadFileButton->setEnabled(false);
    setBusy(true);
    auto* watcher = new QFutureWatcher<Loaded>(this);
    connect(watcher, &QFutureWatcherBase::progressValueChanged, ImportProgressView,
            [this](int value) { ImportProgressView->setProgress(float(value) / 1000.0f); });
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher] {
        watcher->deleteLater();
        fileRead(watcher->future().takeResult());
    });
    watcher->setFuture(QtConcurrent::run(readFile, path));
}

void ImportViewController::fileRead(const Loaded& loaded) {
    setBusy(false);
    if (!loaded.text) {
        Console::log(loaded.error);
        LoadFileButton->setEnabled(!document);
    } else {
        document = *loaded.text;
        ImportTextView->setText(loaded.shown);
        ImportButton->setEnabled(true);
        LoadFileButton->setEnabled(false);
    }
    // Shown after a failed read as well.
    present(
        AlertController::okAlert(tr("Data Import File"), tr("File Loaded and Ready to Import")));
}

void ImportViewController::ImportTextFile() {
    if (!document || busy_)
        return;
    managedObjectContext = Application::viewContext();
    ImportButton->setEnabled(false);
    setBusy(true);
    piecesBefore_ = Exchange::PieceLimit::storedPieces(*managedObjectContext).valueOr(0);
    // The merge takes the text over: normalising it in place needs no second copy.
    merge_ = std::make_unique<Exchange::Merge>(*managedObjectContext, std::exchange(*document, {}),
                                               filename.value_or(QString()));
    after(0, [this] { mergeStep(); });
}

void ImportViewController::mergeStep() {
    const bool more = merge_->step(linesPerStep);
    if (merge_->lineCount() > 0)
        ImportProgressView->setProgress(float(merge_->linesDone()) / float(merge_->lineCount()));
    if (more)
        after(0, [this] { mergeStep(); });
    else
        finishImport();
}

void ImportViewController::finishImport() {
    wrongFile = merge_->result().wrongFile;
    const auto past = Exchange::PieceLimit::crossing(piecesBefore_, merge_->result());
    merge_.reset();
    setBusy(false);
    if (past && !*wrongFile) {
        // Said before the import is reported done: the screens it names stop when opened.
        qsizetype leftOff = 0;
        const QString runs = Exchange::PieceLimit::lineRuns(past->lines, 20, &leftOff);
        const QString lines =
            leftOff > 0 ? tr("%1 and %n more", nullptr, int(leftOff)).arg(runs) : runs;
        auto* warning = new AlertController(
            tr("Too Many Pieces"),
            tr("The collection now holds %1 pieces, more than the %2 the coin list and the "
               "valuation screen can count: they stop when they open. The coins of the file's "
               "lines %3 took it past. Edit > Undo takes the whole import back.")
                .arg(QLocale().toString(past->pieces),
                     QLocale().toString(Exchange::PieceLimit::Most), lines));
        warning->addAction(tr("OK"), AlertController::ActionStyle::Default,
                           [this] { reportDone(); });
        present(warning);
        return;
    }
    reportDone();
}

void ImportViewController::reportDone() {
    AlertController* alert =
        !*wrongFile ? new AlertController(tr("Data Import File"), tr("Data File Import Completed"))
                    : new AlertController(
                          tr("Data Import"),
                          tr("%1 Is The Incorrect Import File").arg(filename.value_or(QString())));
    alert->addAction(tr("OK"), AlertController::ActionStyle::Default,
                     [this] { performUnwind(QStringLiteral("unwindToMenu")); });
    present(alert);
}
