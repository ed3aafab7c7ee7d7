#include "platform/Files.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

namespace Files {

QString temporaryDirectory() {
    return QDir::tempPath() + QLatin1Char('/');
}

bool writeTextAtomically(const QString& path, const QString& text, QString* error) {
    QSaveFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
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
