#include "platform/kit/FatalMessage.h"

#include "platform/core/Fatal.h"

#include <QApplication>
#include <QMessageBox>
#include <QProcess>

namespace FatalMessage {

QMessageBox* open(const QString& message) {
    auto* box = new QMessageBox(QMessageBox::Critical,
                                QCoreApplication::translate("FatalMessage", "Fatal error"), message,
                                QMessageBox::Ok);
    box->setObjectName(QStringLiteral("FatalMessage"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
    return box;
}

bool showInOwnProcess(const QString& message) {
    return QProcess::startDetached(QCoreApplication::applicationFilePath(),
                                   {QString::fromLatin1(kOption), message});
}

void installForWindowSession() {
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))
        return;
    Fatal::setHandler(
        [](const QString& message, const char*, int) { (void)showInOwnProcess(message); });
}

} // namespace FatalMessage
