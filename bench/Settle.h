#pragma once
// For the screenshot tools: lets timers, layouts and animations run for a while.
#include <QApplication>
#include <QElapsedTimer>
#include <QThread>
#include <QWidget>

// PELVANE_SHOT_SIZE=WIDTHxHEIGHT grabs the screens at that window size.
inline void applyShotSize(QWidget& window) {
    const QList<QByteArray> size = qgetenv("PELVANE_SHOT_SIZE").split('x');
    if (size.size() == 2)
        window.resize(size[0].toInt(), size[1].toInt());
}

inline void settle(int ms) {
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms) {
        QApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(5);
    }
}
