#pragma once
// For the screenshot tools: lets timers, layouts and animations run for a while.
#include <QApplication>
#include <QElapsedTimer>
#include <QThread>

inline void settle(int ms) {
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms) {
        QApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(5);
    }
}
