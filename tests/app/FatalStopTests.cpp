// The designed stops of a store that cannot be used, as the program run by a script prints them:
// the fixed source, line and words, then the cause in plain words with SQLite's reason, the
// store's path and SQLite's code; nothing in another runtime's phrasing.
#include "Program.h"
#include "TestSupport.h"
#include "model/StoreLock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace {
// The one line a designed stop writes on standard error.
QString stopLine(const ProgramRun& run) {
    const QStringList lines = run.errors.split('\n', Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.last();
}

ProgramRun stats(const QString& store, const QMap<QString, QString>& environment = {}) {
    QProcess program;
    program.setProcessEnvironment(programEnvironment(environment));
    program.start(QStringLiteral(PELVANE_BINARY), {"--data-dir", store, "--stats"});
    return finishRun(program);
}

class FatalStopTest : public PelvaneTest {
protected:
    QString store() const { return dir() + "/Pelvane.sqlite"; }
    // Runs the program on the store and checks the whole line it stopped with.
    void expectStop(const QString& line, const QMap<QString, QString>& environment = {}) {
        const ProgramRun run = stats(dir(), environment);
        EXPECT_EQ(run.exitCode, -1) << qPrintable(run.errors);
        EXPECT_EQ(stopLine(run), line) << qPrintable(run.errors);
        for (const char* foreign : {"nil", "Optional", "Domain=", "NSError", "userInfo", "[", "{",
                                    "keypath", "coding-compliant"})
            EXPECT_FALSE(run.errors.contains(QLatin1String(foreign))) << foreign;
    }
};
} // namespace

TEST_F(FatalStopTest, AStoreThatCannotBeOpenedStopsWithItsCauseItsPathAndItsCode) {
    const QString head = "Pelvane/AppDelegate:46: Fatal error: Unresolved error ";

    // A folder where the file should be.
    QDir().mkpath(store());
    expectStop(head + "the collection cannot be opened (unable to open database file), store " +
               store() + ", SQLite code 14");
    QDir().rmdir(store());

    // Bytes of something else.
    QByteArray noise(64 * 1024, 0);
    for (qsizetype i = 0; i < noise.size(); ++i)
        noise[i] = char((i * 7919 + 13) % 251);
    writeFile(store(), noise);
    expectStop(head + "the collection file is no database (file is not a database), store " +
               store() + ", SQLite code 26");

    // An empty file where a collection was.
    writeFile(store(), {});
    expectStop(head + "the collection file is no database (the store file is empty), store " +
               store() + ", SQLite code 26");
    QFile::remove(store());

    // A collection of a newer program.
    ASSERT_EQ(runProgram(dir(), {"--stats"}).exitCode, 0);
    ASSERT_EQ(OtherConnection(store()).exec("PRAGMA user_version=99"), 0);
    expectStop(head +
               "The store was written by a newer Pelvane (store version 99; this one reads up "
               "to 7), store " +
               store() + ", SQLite code 134100");
}

// Held by another Pelvane, the collection is no designed stop: the command waits, then says who
// holds it.
TEST_F(FatalStopTest, ACollectionHeldByAnotherProgramNamesTheHolder) {
    ASSERT_EQ(runProgram(dir(), {"--stats"}).exitCode, 0);
    // A restore in this process holds the store alone.
    const Result<StoreLock> held =
        StoreLock::acquire(store(), StoreLock::Replacing, QStringLiteral("a restore"));
    ASSERT_TRUE(held.ok());
    const ProgramRun run = stats(dir(), {{"PELVANE_LOCK_WAIT_MS", "200"}});
    EXPECT_EQ(run.exitCode, 1);
    const QRegularExpression line(
        "^Cannot open the collection " + QRegularExpression::escape(store()) +
        ": The collection is in use by .+ \\(process " +
        QString::number(QCoreApplication::applicationPid()) + "\\); try again when it is done$");
    EXPECT_TRUE(line.match(stopLine(run)).hasMatch()) << qPrintable(run.errors);
}
