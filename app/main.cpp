#include "app/AlreadyOpen.h"
#include "app/AppDelegate.h"
#include "app/AppMenuBar.h"
#include "app/AppStoryboard.h"
#include "app/LaunchOptions.h"
#include "app/StoreCommands.h"
#include "app/Translations.h"
#include "exchange/ExchangeCommands.h"
#include "model/StoreLock.h"
#include "platform/core/Files.h"
#include "platform/core/NativeNames.h"
#include "platform/core/ProtectedFiles.h"
#include "platform/core/UserDefaults.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/FatalMessage.h"
#include "platform/kit/Window.h"
#include "reports/ReportCommand.h"
#include "reports/Statistics.h"
#include "screens/exchange/DamagedStoreBanner.h"
#include "screens/menu/MainMenuViewController.h"

#include <QApplication>
#include <QBuffer>
#include <QGuiApplication>
#include <QIcon>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <optional>

namespace {
// The settings and data folders follow the program's name, unless a data folder is given.
void prepare(const LaunchOptions& options) {
    QCoreApplication::setApplicationName(QStringLiteral("Pelvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Pelvane"));
    if (!options.dataDir.isEmpty())
        useDataDirectory(options.dataDir);
    // No file the program writes may land on the collection's own.
    Files::protectStore(StoreCommands::storePath());
}

// The store's lock for a command's run, or the line that says who holds it.
std::optional<StoreLock> lockFor(StoreLock::Level level, const QString& holder) {
    Result<StoreLock> lock = StoreLock::acquire(StoreCommands::storePath(), level, holder);
    if (lock.ok())
        return std::move(lock.value());
    std::fprintf(stderr, "Cannot open the collection %s: %s\n",
                 qPrintable(StoreCommands::storePath()), qPrintable(lock.error().message));
    return std::nullopt;
}

// Export, import and the totals run without a window, so that scripts and backups work with no
// display.
int runWithoutWindow(int argc, char** argv, const LaunchOptions& options) {
    QCoreApplication app(argc, argv);
    prepare(options);
    // An import writes as a whole piece of work: one at a time, and never with the window.
    const std::optional<StoreLock> lock =
        !options.importFile.isEmpty()
            ? lockFor(StoreLock::Writing,
                      QStringLiteral("pelvane --import %1").arg(options.importFile))
        : options.undo ? lockFor(StoreLock::Writing, QStringLiteral("pelvane --undo"))
                       : lockFor(StoreLock::Reading, QStringLiteral("pelvane"));
    if (!lock)
        return 1;
    AppDelegate delegate;
    delegate.didFinishLaunching();
    PersistentContainer& store = delegate.persistentContainer();
    ManagedObjectContext& context = *store.viewContext();
    if (options.undo)
        return StoreCommands::undo(context, store.storePath());
    if (options.changes)
        return StoreCommands::changes(context, store.storePath());
    if (options.stats) {
        const Result<Statistics::Totals> totals = Statistics::totals(context);
        if (!totals.ok()) {
            std::fprintf(stderr, "Cannot read the collection %s: %s\n",
                         qPrintable(store.storePath()), qPrintable(totals.error().message));
            return 1;
        }
        std::fputs(qPrintable(Statistics::text(totals.value())), stdout);
        return 0;
    }
    if (!options.valueHistoryFile.isEmpty()) {
        const QString& file = options.valueHistoryFile;
        const Result<QByteArray> csv = Statistics::valueHistoryCsv(context);
        if (!csv.ok()) {
            std::fprintf(stderr, "Cannot read the value history of %s: %s\n",
                         qPrintable(store.storePath()), qPrintable(csv.error().message));
            return 1;
        }
        if (const Result<void> written = Files::writeAtomically(file, csv.value()); !written.ok()) {
            std::fprintf(stderr, "Cannot write %s: %s\n", qPrintable(file),
                         qPrintable(written.error().message));
            return 1;
        }
        return 0;
    }
    return !options.exportFile.isEmpty()
               ? Exchange::runExport(context, options.exportFile, store.storePath())
               : Exchange::runImport(context, options.importFile, &store);
}
// The report lays text out and draws it, so it needs fonts but never a display.
int runReport(int argc, char** argv, const LaunchOptions& options) {
    if (const QString wrong = ReportCommand::check(options.report); !wrong.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(wrong));
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    // The report is a document for a reader: its headings follow the desktop's language.
    Translations::install();
    prepare(options);
    const std::optional<StoreLock> lock = lockFor(StoreLock::Reading, QStringLiteral("pelvane"));
    if (!lock)
        return 1;
    AppDelegate delegate;
    delegate.didFinishLaunching();
    return ReportCommand::run(*delegate.persistentContainer().viewContext(),
                              delegate.persistentContainer().storePath(), options.report,
                              options.pdfFile);
}
} // namespace

int main(int argc, char** argv) {
    // File names are bytes, not always UTF-8: each is kept as given, so that it names the same
    // file when it goes back to the system.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << Files::fromNativeName(QByteArray(argv[i]));
    // A stopped run of the program starts it again like this to show why it stopped.
    if (arguments.size() == 3 && arguments[1] == QLatin1String(FatalMessage::kOption)) {
        QApplication app(argc, argv);
        Translations::install();
        QObject::connect(FatalMessage::open(arguments[2]), &QMessageBox::finished, &app,
                         &QCoreApplication::quit);
        return QApplication::exec();
    }
    LaunchOptions options = parseLaunchOptions(arguments);
    // Help and usage are read by a person, in the desktop's language; what the commands print
    // is read by scripts and stays as it is.
    std::optional<QCoreApplication> forHelp;
    if (!options.message.isEmpty() || !options.error.isEmpty()) {
        forHelp.emplace(argc, argv);
        if (!Translations::install().isEmpty())
            options = parseLaunchOptions(arguments);
    }
    if (!options.message.isEmpty()) {
        std::fputs(qPrintable(options.message), stdout);
        return 0;
    }
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(options.error));
        return 2;
    }
    if (!options.exportFile.isEmpty() || !options.importFile.isEmpty() || options.stats ||
        !options.valueHistoryFile.isEmpty() || options.undo || options.changes)
        return runWithoutWindow(argc, argv, options);
    if (!options.backupFile.isEmpty() || !options.restoreFile.isEmpty() || options.listBackups) {
        QCoreApplication app(argc, argv);
        prepare(options);
        return !options.backupFile.isEmpty()    ? StoreCommands::backup(options.backupFile)
               : !options.restoreFile.isEmpty() ? StoreCommands::restore(options.restoreFile)
                                                : StoreCommands::listSnapshots();
    }
    if (!options.report.isEmpty())
        return runReport(argc, argv, options);

    QApplication app(argc, argv);
    Translations::install();
    FatalMessage::installForWindowSession();
    QGuiApplication::setDesktopFileName(QStringLiteral("org.pelvane.pelvane"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/pelvane.svg")));
    prepare(options);
    // One window on a collection: a second one says where the first is, and goes.
    Result<StoreLock> windowLock = StoreLock::acquire(
        StoreCommands::storePath(), StoreLock::Writing, QStringLiteral("Pelvane's window"), 1500);
    if (!windowLock.ok()) {
        if (QMessageBox* box =
                AlreadyOpen::show(StoreCommands::storePath(), windowLock.error().message))
            QObject::connect(box, &QMessageBox::finished, &app, [] { QCoreApplication::exit(1); });
        return QApplication::exec();
    }
    const bool snapshotDue = StoreCommands::snapshotDue();
    AppDelegate delegate;
    delegate.didFinishLaunching();
    if (options.dark || UserDefaults::standard().boolForKey(AppMenuBar::kDarkPreference))
        Appearance::setDark(true);
    AppStoryboard::install();

    auto* menu = new MainMenuViewController;
    Window window(menu);
    AppMenuBar::install(window, menu);
    window.rememberGeometry(QStringLiteral("WindowGeometry"));
    window.show();
    DamagedStoreBanner::checkSoon(&window, StoreCommands::storePath());
    if (snapshotDue)
        StoreCommands::takeSnapshotSoon(&window);
    if (options.openMenu)
        menu->HandleButtonClick();
    if (!options.grabFile.isEmpty()) {
        QTimer::singleShot(700, &window, [&window, file = options.grabFile] {
            // In the format the name's suffix gives (PNG without one), written as every output.
            const qsizetype dot = file.lastIndexOf(QLatin1Char('.'));
            const QByteArray format = dot > file.lastIndexOf(QLatin1Char('/'))
                                          ? file.mid(dot + 1).toLatin1()
                                          : QByteArray("png");
            QBuffer picture;
            picture.open(QIODevice::WriteOnly);
            if (!window.grab().save(&picture, format.constData()))
                std::fprintf(stderr, "Cannot save the picture as %s\n", format.constData());
            else if (const Result<void> written = Files::writeAtomically(file, picture.data());
                     !written.ok())
                std::fprintf(stderr, "Cannot write %s: %s\n", qPrintable(file),
                             qPrintable(written.error().message));
            QApplication::quit();
        });
    }
    return QApplication::exec();
}
