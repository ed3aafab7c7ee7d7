#include "platform/Files.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

namespace Files {

QString temporaryDirectory() {
    return QDir::tempPath() + QLatin1Char('/');
}

bool writeAtomically(const QString& path, const QByteArray& bytes, QString* error) {
    QSaveFile file(path);
    bool ok = file.open(QIODevice::WriteOnly);
    // A write cut short by a full disk or a size limit reports no reason; the next one fails
    // with the system's.
    for (qint64 done = 0, n = 0; ok && done < bytes.size(); done += n)
        ok = (n = file.write(bytes.constData() + done, bytes.size() - done)) > 0;
    if (ok && file.commit())
        return true;
    if (error)
        *error = file.errorString();
    return false;
}

bool writeTextAtomically(const QString& path, const QString& text, QString* error) {
    return writeAtomically(path, text.toUtf8(), error);
}

bool readText(const QString& path, QString& text, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    const QByteArray bytes = file.readAll();
    auto encoding = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    text = decoder(bytes);
    if (decoder.hasError()) {
        if (error)
            *error = QStringLiteral("The file is not text in a known encoding.");
        return false;
    }
    return true;
}

} // namespace Files
