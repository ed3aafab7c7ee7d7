#include "exchange/ImportViewController.h"

#include "exchange/ExchangeReader.h"
#include "platform/Console.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "screens/Application.h"

#include <QFileInfo>
#include <QLabel>
#include <QVBoxLayout>

ImportViewController::ImportViewController(QWidget* parent)
    : ViewController(parent)
    , LoadFileButton(new QPushButton(QStringLiteral("Load File"), this))
    , ImportButton(new QPushButton(QStringLiteral("Import File"), this))
    , ImportTextView(new TextView(this))
    , HelpTextView(new TextView(this)) {
    LoadFileButton->setObjectName(QStringLiteral("LoadFileButton"));
    ImportButton->setObjectName(QStringLiteral("ImportButton"));
    ImportTextView->setReadOnly(true);
    HelpTextView->setReadOnly(true);
    ImportTextView->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 16);
    layout->addWidget(HelpTextView, 1);
    layout->addWidget(LoadFileButton);
    layout->addWidget(ImportTextView, 3);
    layout->addWidget(ImportButton);
    for (QPushButton* b : {LoadFileButton, ImportButton})
        b->setMinimumHeight(44);
    connect(LoadFileButton, &QPushButton::clicked, this, &ImportViewController::LoadFile);
    connect(ImportButton, &QPushButton::clicked, this, &ImportViewController::ImportTextFile);
}

void ImportViewController::viewDidLoad() {
    setTitle(QStringLiteral("Import Coins"));
    DarkMode = Appearance::isDark();
    for (QPushButton* b : {LoadFileButton, ImportButton})
        Styling::round(b, 10, 2, Qt::black);
    const QColor border = DarkMode ? Qt::white : Qt::black;
    Styling::round(ImportTextView, 5, 1, border);
    Styling::round(HelpTextView, 5, 1, border);
    wrongFile = false;
    ImportButton->setEnabled(false);
    HelpTextView->setText(QStringLiteral("YOU CAN ONLY IMPORT THE FILE CREATED BY THIS APP.\n") +
                          QStringLiteral("1: Select the file you saved to your iCloud drive\n") +
                          QStringLiteral("2: Import the file into your device"));
}

void ImportViewController::LoadFile() {
    Platform::documentPicker().open(
        this, {QStringLiteral("Exchange files (*.csv)"), QStringLiteral("All files (*)")},
        [this](const QString& path) { documentPicked(path); }, {});
}

void ImportViewController::documentPicked(const QString& path) {
    filename = QFileInfo(path).fileName();
    QString text, error;
    if (!Files::readText(path, text, &error)) {
        Console::log(error);
    } else {
        document = text;
        ImportTextView->setText(text);
        ImportButton->setEnabled(true);
        LoadFileButton->setEnabled(false);
    }
    // Shown after a failed read as well.
    present(AlertController::okAlert(QStringLiteral("Data Import File"),
                                     QStringLiteral("File Loaded and Ready to Import")));
}

void ImportViewController::ImportTextFile() {
    if (!document)
        return;
    managedObjectContext = Application::viewContext();
    wrongFile = Exchange::mergeExchangeText(*managedObjectContext, *document).wrongFile;
    AlertController* alert =
        !*wrongFile ? new AlertController(QStringLiteral("Data Import File"),
                                          QStringLiteral("Data File Import Completed"))
                    : new AlertController(QStringLiteral("Data Import"),
                                          filename.value_or(QString()) +
                                              QStringLiteral(" Is The Incorrect Import File"));
    alert->addAction(QStringLiteral("OK"), AlertController::ActionStyle::Default,
                     [this] { performUnwind(QStringLiteral("unwindToMenu")); });
    present(alert);
}

ImportExportViewController::ImportExportViewController(QWidget* parent)
    : ViewController(parent)
    , ExportButton(new QPushButton(QStringLiteral("Export Coins"), this))
    , ImportButton(new QPushButton(QStringLiteral("Import Coins"), this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    auto* note = new QLabel(QStringLiteral("Move the whole collection to another device: export "
                                           "it here, import the file there."),
                            this);
    note->setWordWrap(true);
    layout->addWidget(note);
    layout->addSpacing(12);
    layout->addWidget(ExportButton);
    layout->addWidget(ImportButton);
    layout->addStretch();
    for (QPushButton* b : {ExportButton, ImportButton})
        b->setMinimumHeight(48);
    connect(ExportButton, &QPushButton::clicked, this, [this] { performSegue("ExportCoins"); });
    connect(ImportButton, &QPushButton::clicked, this, [this] { performSegue("ImportCoins"); });
}

void ImportExportViewController::viewDidLoad() {
    setTitle(QStringLiteral("Import / Export"));
    for (QPushButton* b : {ExportButton, ImportButton})
        Styling::round(b, 10, 2, Qt::black);
}
