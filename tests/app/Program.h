#pragma once
// The program run as a child process, as scripts and backups run it: no display at all.
#include <QProcess>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

#include "TestSupport.h"

struct ProgramRun {
    int exitCode = -1; // -1: it did not end by itself (a crash, or the fatal stop's abort)
    QString output, errors;
};

// The environment of a program run by a script: no display at all, plus what is given.
inline QProcessEnvironment programEnvironment(const QMap<QString, QString>& extra = {}) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(QString::fromLatin1(name));
    for (auto it = extra.begin(); it != extra.end(); ++it)
        env.insert(it.key(), it.value());
    return env;
}

// Waits for a started program to end and takes what it said.
inline ProgramRun finishRun(QProcess& program) {
    EXPECT_TRUE(program.waitForFinished(60000));
    ProgramRun run;
    run.output = QString::fromUtf8(program.readAllStandardOutput());
    run.errors = QString::fromUtf8(program.readAllStandardError());
    if (program.exitStatus() == QProcess::NormalExit)
        run.exitCode = program.exitCode();
    return run;
}

// `prefix` runs it inside another command (a read-only mount).
inline ProgramRun runProgram(const QStringList& arguments, const QStringList& prefix = {}) {
    QProcess program;
    program.setProcessEnvironment(programEnvironment());
    QStringList command = prefix;
    command << QStringLiteral(PELVANE_BINARY) << arguments;
    program.start(command.takeFirst(), command);
    return finishRun(program);
}

// The same on a data folder of the test's.
inline ProgramRun runProgram(const QString& dataDir, const QStringList& arguments,
                             const QStringList& prefix = {}) {
    return runProgram(QStringList{QStringLiteral("--data-dir"), dataDir} + arguments, prefix);
}

inline const QString kSampleFile = QStringLiteral(PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv");

// A store in its own data folder holding the sample, and what the exchange file cannot carry.
inline QString sampleCollection(const QString& folder) {
    EXPECT_EQ(runProgram(folder, {"--import", kSampleFile}).exitCode, 0);
    const QString store = folder + "/Pelvane.sqlite";
    OtherConnection db(store);
    EXPECT_EQ(db.exec("UPDATE Coins SET descrip = 'O''Brien''s \"harp\", 1,2', value = 0.1, "
                      "totalValue = 1e-7 WHERE pk = 1;"
                      "INSERT INTO Coins (country, denomination, year, mintMark) "
                      "SELECT country, denomination, year, mintMark FROM Coins WHERE pk = 1"),
              0);
    return store;
}

// The same with arguments given as bytes, which need not be UTF-8 (file names in Latin-1):
// QProcess passes text only, so a shell makes each argument from printf's octal escapes.
// `prefix` runs it inside another command (env QT_QPA_PLATFORM=offscreen).
inline ProgramRun runProgramWithBytes(const QList<QByteArray>& arguments,
                                      const QStringList& prefix = {}) {
    QString script = QStringLiteral("exec");
    for (const QString& word : prefix)
        script += QStringLiteral(" '%1'").arg(word);
    script += QStringLiteral(" \"$0\"");
    for (const QByteArray& argument : arguments) {
        QString octal;
        for (const char c : argument)
            octal += QStringLiteral("\\%1").arg(uint(uchar(c)), 3, 8, QLatin1Char('0'));
        script += QStringLiteral(" \"$(printf '%1')\"").arg(octal);
    }
    return runProgram(QStringList(), {QStringLiteral("/bin/sh"), QStringLiteral("-c"), script});
}
