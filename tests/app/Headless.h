#pragma once
// The program run as a script runs it: no display at all, its data in a folder of the test.
#include <QProcess>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

struct HeadlessRun {
    int exitCode = -1; // -1: it crashed
    QString output, errors;
};

inline HeadlessRun runHeadless(const QString& dataDir, const QStringList& arguments) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(QString::fromLatin1(name));
    QProcess program;
    program.setProcessEnvironment(env);
    program.start(QStringLiteral(PELVANE_BINARY),
                  QStringList{QStringLiteral("--data-dir"), dataDir} + arguments);
    EXPECT_TRUE(program.waitForFinished(60000));
    HeadlessRun run;
    run.output = QString::fromUtf8(program.readAllStandardOutput());
    run.errors = QString::fromUtf8(program.readAllStandardError());
    if (program.exitStatus() == QProcess::NormalExit)
        run.exitCode = program.exitCode();
    return run;
}
