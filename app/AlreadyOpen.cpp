#include "app/AlreadyOpen.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>

namespace AlreadyOpen {

QMessageBox* show(const QString& storePath, const QString& reason) {
    std::fprintf(stderr, "Cannot open the collection %s: %s\n", qPrintable(storePath),
                 qPrintable(reason));
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal")) {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(1); });
        return nullptr;
    }
    auto* box = new QMessageBox(
        QMessageBox::Information, QCoreApplication::translate("AlreadyOpen", "Collection In Use"),
        QCoreApplication::translate("AlreadyOpen",
                                    "This collection is open in another Pelvane (named below). "
                                    "Carry on there, or start Pelvane again once it is closed."),
        QMessageBox::Ok);
    box->setInformativeText(reason);
    box->setObjectName(QStringLiteral("AlreadyOpen"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
    return box;
}

} // namespace AlreadyOpen
