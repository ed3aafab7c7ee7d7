// Importing the 32,000-coin exchange file from the import screen against the command line:
// peak memory of each (each in a process of its own, from its start-up to the end of the
// import) and the longest the window went without an event-loop turn.
// Prints one figure per line.
#include "BenchProgram.h"
#include "ProcessMemory.h"
#include "exchange/ExchangeCommands.h"
#include "exchange/ExchangeWriter.h"
#include "model/ManagedObjectContext.h"
#include "platform/kit/AlertController.h"
#include "screens/exchange/ImportViewController.h"

#include <QFile>
#include <QProcess>
#include <QTimer>

#include <cstdio>

namespace {

// Peak resident memory counted from here on.
long startCounting() {
    ProcessMemory::resetPeak();
    return ProcessMemory::currentKb();
}

double peakMbSince(long baseKb) {
    return double(ProcessMemory::peakKb() - baseKb) / 1024.0;
}

AlertController* waitForAlert() {
    while (!AlertController::current())
        BenchProgram::settle(5);
    return AlertController::current();
}

int commandLine(const QString& file, const QString& dir) {
    useDataDirectory(dir);
    auto container = BenchCollection::open();
    const long base = startCounting();
    if (Exchange::runImport(*container->viewContext(), file) != 0)
        return 1;
    std::printf("%.1f\n", peakMbSince(base));
    return 0;
}

int screen(const QString& file, const QString& dir) {
    BenchProgram::Running program(dir);
    BenchProgram::settle(100);
    const long base = startCounting();
    QElapsedTimer sinceTick;
    qint64 longestPause = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout,
                     [&] { longestPause = std::max(longestPause, sinceTick.restart()); });
    program.menu->performSegue("ImportExport");
    program.nav()->topViewController()->performSegue("ImportCoins");
    auto* import = static_cast<ImportViewController*>(program.nav()->topViewController());
    program.fakes.documentPicker->next = file;
    sinceTick.start();
    ticker.start(5);
    import->LoadFile();
    waitForAlert()->triggerAction("OK");
    import->ImportTextFile();
    waitForAlert();
    ticker.stop();
    const double peak = peakMbSince(base);
    FetchRequest request(QStringLiteral("Coins"));
    std::printf(
        "%.1f %lld %lld\n", peak, qlonglong(longestPause),
        qlonglong(program.delegate.persistentContainer().viewContext()->count(request).value()));
    return 0;
}

QStringList runSelf(const char* self, const QStringList& arguments) {
    QProcess child;
    child.start(QString::fromLocal8Bit(self), arguments);
    child.waitForFinished(-1);
    if (child.exitCode() != 0) {
        std::fprintf(stderr, "%s\n", child.readAllStandardError().constData());
        return {};
    }
    // The figures are the last line: the import and the screens print lines of their own.
    const QList<QByteArray> lines = child.readAllStandardOutput().trimmed().split('\n');
    return QString::fromLatin1(lines.last()).simplified().split(' ');
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 4) {
        QApplication app(argc, argv);
        const QString mode = QString::fromLocal8Bit(argv[1]);
        return mode == QLatin1String("--cli")
                   ? commandLine(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]))
                   : screen(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    }
    constexpr int kCoins = 32000;
    QString file;
    QTemporaryDir root;
    {
        QApplication app(argc, argv);
        BenchCollection::build(root.filePath("source"), kCoins);
        auto container = BenchCollection::open();
        file = root.filePath("Pelvane.csv");
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly) ||
            out.write(Exchange::exchangeText(*container->viewContext()).value()) < 0)
            return 1;
        std::printf("%-52s %10.1f MB\n", "import bench: exchange file size",
                    double(out.size()) / 1e6);
    }
    const QStringList cli = runSelf(argv[0], {"--cli", file, root.filePath("cli")});
    const QStringList shown = runSelf(argv[0], {"--screen", file, root.filePath("screen")});
    if (cli.isEmpty() || shown.size() < 3)
        return 1;
    const double cliMb = cli[0].toDouble(), screenMb = shown[0].toDouble();
    const QByteArray target =
        QStringLiteral("<= 1.5 x the command line's %1 MB").arg(cliMb, 0, 'f', 1).toLatin1();
    BenchCollection::print("command line import: peak memory, 32,000 coins", cliMb, "MB", "-");
    BenchCollection::print("import screen: peak memory, 32,000 coins", screenMb, "MB",
                           target.constData());
    BenchCollection::print("import screen: peak / command line", screenMb / cliMb, "x", "<= 1.5");
    BenchCollection::print("import screen: longest pause of the window", shown[1].toDouble(), "ms",
                           "<= 250 ms");
    if (shown[2].toInt() != kCoins) {
        std::fprintf(stderr, "expected %d coins, the screen saved %s\n", kCoins,
                     qPrintable(shown[2]));
        return 1;
    }
    return 0;
}
