#include "app/CommandLine.h"

#include "model/PersistentContainer.h"
#include "platform/Files.h"
#include "platform/UserDefaults.h"

#include <QCommandLineParser>
#include <QDir>

LaunchOptions parseLaunchOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Pelvane, a catalogue of a coin collection"));
    parser.addHelpOption();
    const QCommandLineOption dataDir(QStringLiteral("data-dir"),
                                     QStringLiteral("Keep the collection and preferences in DIR."),
                                     QStringLiteral("DIR"));
    const QCommandLineOption exportFile(
        QStringLiteral("export"), QStringLiteral("Write the exchange file of the collection."),
        QStringLiteral("FILE"));
    const QCommandLineOption importFile(
        QStringLiteral("import"), QStringLiteral("Merge an exchange file into the collection."),
        QStringLiteral("FILE"));
    const QCommandLineOption grab(QStringLiteral("grab"),
                                  QStringLiteral("Save a picture of the window and quit."),
                                  QStringLiteral("PNG"));
    const QCommandLineOption dark(QStringLiteral("dark"),
                                  QStringLiteral("Use the dark appearance."));
    const QCommandLineOption openMenu(QStringLiteral("open-menu"),
                                      QStringLiteral("Start with the menu opened."));
    const QCommandLineOption report(
        QStringLiteral("report"),
        QStringLiteral("Write the PDF report of a group: denomination, country or year, then "
                       "the VALUE."),
        QStringLiteral("KIND"));
    const QCommandLineOption pdf(QStringLiteral("pdf"), QStringLiteral("Write the report to FILE."),
                                 QStringLiteral("FILE"));
    parser.addOptions({dataDir, exportFile, importFile, grab, dark, openMenu, report, pdf});
    LaunchOptions options;
    if (!parser.parse(arguments)) {
        options.error = parser.errorText();
        return options;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        options.error = parser.helpText();
        return options;
    }
    options.dataDir = parser.value(dataDir);
    options.exportFile = parser.value(exportFile);
    options.importFile = parser.value(importFile);
    options.grabFile = parser.value(grab);
    options.dark = parser.isSet(dark);
    options.openMenu = parser.isSet(openMenu);
    if (parser.isSet(report))
        options.report = QStringList{parser.value(report)} + parser.positionalArguments();
    options.pdfFile = parser.value(pdf);
    if (!options.exportFile.isEmpty() && !options.importFile.isEmpty())
        options.error = QStringLiteral("--export and --import cannot be combined");
    return options;
}

void useDataDirectory(const QString& dir) {
    const QString absolute = QDir(dir).absolutePath();
    QDir().mkpath(absolute);
    PersistentContainer::setDefaultDirectory(absolute);
    UserDefaults::useFile(QDir(absolute).filePath(QStringLiteral("Pelvane.ini")));
    Files::setDocumentsDirectory(QDir(absolute).filePath(QStringLiteral("Documents")));
}
