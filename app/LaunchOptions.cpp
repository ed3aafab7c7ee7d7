#include "app/LaunchOptions.h"

#include "model/PersistentContainer.h"
#include "platform/core/Files.h"
#include "platform/core/NativeFiles.h"
#include "platform/core/UserDefaults.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace {
// Every option once: its names, the name of its value (none for a switch), the line --help
// shows, and what it sets.
struct Option {
    QStringList names;
    QString valueName;
    const char* description; // translated where --help shows it

    void (*apply)(LaunchOptions&, const QString& value);
};

const QList<Option>& options() {
    static const QList<Option> all = {
        {{"data-dir"},
         "DIR",
         QT_TRANSLATE_NOOP("LaunchOptions", "Keep the collection and preferences in DIR."),
         [](LaunchOptions& o, const QString& v) { o.dataDir = v; }},
        {{"export"},
         "FILE",
         QT_TRANSLATE_NOOP("LaunchOptions",
                           "Write the exchange file of the collection to FILE and exit."),
         [](LaunchOptions& o, const QString& v) { o.exportFile = v; }},
        {{"import"},
         "FILE",
         QT_TRANSLATE_NOOP("LaunchOptions",
                           "Merge the exchange file FILE into the collection and exit."),
         [](LaunchOptions& o, const QString& v) { o.importFile = v; }},
        {{"backup"},
         "FILE",
         QT_TRANSLATE_NOOP(
             "LaunchOptions",
             "Write an exact copy of the whole collection, pictures and all, to FILE and exit."),
         [](LaunchOptions& o, const QString& v) { o.backupFile = v; }},
        {{"restore"},
         "FILE",
         QT_TRANSLATE_NOOP(
             "LaunchOptions",
             "Replace the collection with the backup or snapshot FILE (the current one is kept as "
             "a snapshot first) and exit."),
         [](LaunchOptions& o, const QString& v) { o.restoreFile = v; }},
        {{"backups"},
         {},
         QT_TRANSLATE_NOOP("LaunchOptions", "List the snapshots taken automatically and exit."),
         [](LaunchOptions& o, const QString&) { o.listBackups = true; }},
        {{"stats"},
         {},
         QT_TRANSLATE_NOOP("LaunchOptions", "Print the number of coins, of pieces and the total "
                                            "value of the collection and exit."),
         [](LaunchOptions& o, const QString&) { o.stats = true; }},
        {{"value-history"},
         "FILE",
         QT_TRANSLATE_NOOP(
             "LaunchOptions",
             "Write the collection's pieces and total value at the end of every day on which they "
             "changed to FILE, as CSV, and exit."),
         [](LaunchOptions& o, const QString& v) { o.valueHistoryFile = v; }},
        {{"undo"},
         {},
         QT_TRANSLATE_NOOP(
             "LaunchOptions",
             "Undo the last change made to the collection, say what it was and exit."),
         [](LaunchOptions& o, const QString&) { o.undo = true; }},
        {{"changes"},
         {},
         QT_TRANSLATE_NOOP(
             "LaunchOptions",
             "List the last 50 changes made to the collection, newest first, and exit."),
         [](LaunchOptions& o, const QString&) { o.changes = true; }},
        {{"report"},
         "KIND",
         QT_TRANSLATE_NOOP(
             "LaunchOptions",
             "Write the PDF report of a group and exit: KIND is denomination, country or year, "
             "followed by the group's VALUE."),
         [](LaunchOptions& o, const QString& v) { o.report = QStringList{v}; }},
        {{"pdf"},
         "FILE",
         QT_TRANSLATE_NOOP("LaunchOptions",
                           "Write the report to FILE instead of the documents folder."),
         [](LaunchOptions& o, const QString& v) { o.pdfFile = v; }},
        {{"dark"},
         {},
         QT_TRANSLATE_NOOP("LaunchOptions", "Use the dark appearance."),
         [](LaunchOptions& o, const QString&) { o.dark = true; }},
        {{"grab"},
         "PNG",
         QT_TRANSLATE_NOOP("LaunchOptions", "Save a picture of the window to PNG and quit."),
         [](LaunchOptions& o, const QString& v) { o.grabFile = v; }},
        {{"open-menu"},
         {},
         QT_TRANSLATE_NOOP("LaunchOptions", "Start with the menu opened."),
         [](LaunchOptions& o, const QString&) { o.openMenu = true; }},
        {{"h", "help"},
         {},
         QT_TRANSLATE_NOOP("LaunchOptions", "Show this help and exit."),
         [](LaunchOptions& o, const QString&) { o.message = launchHelpText(); }},
        {{"v", "version"},
         {},
         QT_TRANSLATE_NOOP("LaunchOptions", "Show the version and exit."),
         [](LaunchOptions& o, const QString&) {
             o.message = QStringLiteral("Pelvane " PELVANE_VERSION "\n");
         }},
    };
    return all;
}

QString usageError(const QString& problem) {
    return QCoreApplication::translate("LaunchOptions", "pelvane: %1\nUsage: pelvane [options]\n"
                                                        "Try 'pelvane --help' for the options.")
        .arg(problem);
}
} // namespace

QString launchHelpText() {
    QStringList left;
    qsizetype width = 0;
    for (const Option& o : options()) {
        QStringList names;
        for (const QString& n : o.names)
            names << (n.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + n;
        left << names.join(QStringLiteral(", ")) +
                    (o.valueName.isEmpty() ? QString() : QLatin1Char(' ') + o.valueName);
        width = std::max(width, left.last().size());
    }
    QString text = QCoreApplication::translate(
        "LaunchOptions", "Usage: pelvane [options]\n"
                         "Pelvane, a catalogue of a coin collection. Without options it opens the "
                         "catalogue's window.\n\nOptions:\n");
    for (qsizetype i = 0; i < left.size(); ++i)
        text += QStringLiteral("  %1  %2\n")
                    .arg(left[i].leftJustified(width),
                         QCoreApplication::translate("LaunchOptions", options()[i].description));
    return text;
}

namespace {
// The group's value after --report KIND may begin with "-" (--report year -5), which the parser
// would take for an option: it is taken out before parsing and put back after. Only "--" and
// the program's own short options are options there.
QString takeReportValue(QStringList& arguments) {
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        qsizetype value = -1;
        if (arguments[i] == QLatin1String("--report"))
            value = i + 2;
        else if (arguments[i].startsWith(QLatin1String("--report=")))
            value = i + 1;
        else if (arguments[i] == QLatin1String("--"))
            return {};
        if (value < 0)
            continue;
        if (value >= arguments.size())
            return {};
        const QString& v = arguments[value];
        if (!v.startsWith(QLatin1Char('-')) || v.startsWith(QLatin1String("--")) || v.size() < 2 ||
            v == QLatin1String("-h") || v == QLatin1String("-v"))
            return {};
        return arguments.takeAt(value);
    }
    return {};
}
} // namespace

LaunchOptions parseLaunchOptions(const QStringList& given) {
    QStringList arguments = given;
    const QString negativeReportValue = takeReportValue(arguments);
    QCommandLineParser parser;
    QList<QCommandLineOption> parserOptions;
    for (const Option& o : options())
        parserOptions << QCommandLineOption(o.names, QString::fromLatin1(o.description),
                                            o.valueName);
    parser.addOptions(parserOptions);
    LaunchOptions launch;
    if (!parser.parse(arguments)) {
        launch.error = usageError(parser.errorText());
        return launch;
    }
    for (qsizetype i = 0; i < options().size(); ++i) {
        if (!parser.isSet(parserOptions[i]))
            continue;
        const Option& option = options()[i];
        // An empty value (a script's unset variable) names nothing; taken as absent, it would
        // open the window where a command was meant.
        if (!option.valueName.isEmpty() && parser.values(parserOptions[i]).contains(QString())) {
            launch.error =
                usageError(QCoreApplication::translate(
                               "LaunchOptions", "--%1 needs a %2, and the one given is empty.")
                               .arg(option.names.last(), option.valueName));
            return launch;
        }
        option.apply(launch, parser.value(parserOptions[i]));
    }
    // The only free argument is the group a report is for (--report year 1964).
    if (!launch.report.isEmpty()) {
        if (!negativeReportValue.isEmpty())
            launch.report += negativeReportValue;
        launch.report += parser.positionalArguments();
    } else if (!parser.positionalArguments().isEmpty()) {
        launch.error =
            usageError(QCoreApplication::translate("LaunchOptions", "Unexpected argument '%1'.")
                           .arg(parser.positionalArguments().first()));
        return launch;
    }
    if (!launch.message.isEmpty())
        return launch;
    if (!launch.pdfFile.isEmpty() && launch.report.isEmpty()) {
        launch.error = usageError(QCoreApplication::translate(
            "LaunchOptions", "--pdf names where a --report goes, and there is no --report."));
        return launch;
    }
    // One thing at a time: each of these does its work and exits.
    const QList<std::pair<const char*, bool>> commands = {
        {"--export", !launch.exportFile.isEmpty()},
        {"--import", !launch.importFile.isEmpty()},
        {"--backup", !launch.backupFile.isEmpty()},
        {"--restore", !launch.restoreFile.isEmpty()},
        {"--backups", launch.listBackups},
        {"--stats", launch.stats},
        {"--value-history", !launch.valueHistoryFile.isEmpty()},
        {"--report", !launch.report.isEmpty()},
        {"--undo", launch.undo},
        {"--changes", launch.changes}};
    QStringList asked;
    for (const auto& [name, set] : commands)
        if (set)
            asked << QLatin1String(name);
    if (asked.size() > 1)
        launch.error =
            usageError(QCoreApplication::translate("LaunchOptions", "%1 cannot be combined.")
                           .arg(asked.join(QCoreApplication::translate("LaunchOptions", " and "))));
    return launch;
}

void useDataDirectory(const QString& dir) {
    const QString absolute = Files::absoluteName(dir);
    Files::makePath(absolute);
    PersistentContainer::setDefaultDirectory(absolute);
    // The preferences are read and written by Qt, which is given a name it can reach the
    // folder by.
    UserDefaults::useFile(QDir(Files::nameForQt(absolute)).filePath(QStringLiteral("Pelvane.ini")));
    Files::setDocumentsDirectory(QDir(absolute).filePath(QStringLiteral("Documents")));
    Files::setPicturesDirectory(QDir(absolute).filePath(QStringLiteral("Pictures")));
}
