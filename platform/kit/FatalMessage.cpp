#include "platform/kit/FatalMessage.h"

#include "platform/Fatal.h"

#include <QApplication>
#include <QMessageBox>
#include <QMutex>
#include <QSemaphore>
#include <QThread>

#include <memory>

namespace FatalMessage {

namespace {
constexpr int kMainThreadWaitMs = 3000;

void showHere(const QString& message) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Fatal error"), message, QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setObjectName(QStringLiteral("FatalMessage"));
    // The program ends when the box closes: waiting for that is all there is left to do.
    box.exec();
}
} // namespace

void show(const QString& message) {
    if (!qApp)
        return;
    if (QThread::currentThread() == qApp->thread()) {
        showHere(message);
        return;
    }
    struct Handshake {
        QMutex lock;
        bool abandoned = false;
        QSemaphore started, closed;
    };
    auto handshake = std::make_shared<Handshake>();
    QMetaObject::invokeMethod(
        qApp,
        [handshake, message] {
            {
                QMutexLocker locked(&handshake->lock);
                if (handshake->abandoned)
                    return; // the stopping thread gave up waiting; too late to tell
                handshake->started.release();
            }
            showHere(message);
            handshake->closed.release();
        },
        Qt::QueuedConnection);
    if (!handshake->started.tryAcquire(1, kMainThreadWaitMs)) {
        QMutexLocker locked(&handshake->lock);
        if (!handshake->started.tryAcquire(1)) {
            handshake->abandoned = true;
            return;
        }
    }
    handshake->closed.acquire();
}

void installForWindowSession() {
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))
        return;
    Fatal::setHandler([](const QString& message, const char*, int) { show(message); });
}

} // namespace FatalMessage
