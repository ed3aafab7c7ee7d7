#include "platform/core/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QStringDecoder>

namespace Files {

QString temporaryDirectory() {
    return QDir::tempPath() + QLatin1Char('/');
}

namespace {
QString& documentsSetting() {
    static QString dir;
    return dir;
}
} // namespace

QString documentsDirectory() {
    QString dir = documentsSetting();
    if (dir.isEmpty())
        dir = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QDir().mkpath(dir);
    return dir.endsWith(QLatin1Char('/')) ? dir : dir + QLatin1Char('/');
}

void setDocumentsDirectory(const QString& dir) {
    documentsSetting() = dir;
}

bool writeAll(QIODevice& device, const QByteArray& bytes, QString* error) {
    // A write cut short by a full disk or a size limit reports no reason; the next one fails
    // with the system's.
    qint64 n = 0;
    for (qint64 done = 0; done < bytes.size(); done += n)
        if ((n = device.write(bytes.constData() + done, bytes.size() - done)) <= 0) {
            if (error)
                *error = device.errorString();
            return false;
        }
    return true;
}

bool isWritableTarget(const QString& path, QString* error) {
    // Renaming a new file over a device node or a pipe would replace it, even for root.
    const QFileInfo info(path);
    if (!info.exists() || info.isFile())
        return true;
    if (error)
        *error = QStringLiteral("it is not a regular file");
    return false;
}

bool copyAtomically(const QString& from, const QString& to, QString* error) {
    if (!isWritableTarget(to, error))
        return false;
    QFile in(from);
    if (!in.open(QIODevice::ReadOnly)) {
        if (error)
            *error = in.errorString();
        return false;
    }
    QSaveFile out(to);
    if (!out.open(QIODevice::WriteOnly)) {
        if (error)
            *error = out.errorString();
        return false;
    }
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(1 << 20);
        if (chunk.isEmpty() && in.error() != QFileDevice::NoError) {
            if (error)
                *error = in.errorString();
            out.cancelWriting();
            return false;
        }
        if (!writeAll(out, chunk, error)) {
            out.cancelWriting();
            return false;
        }
    }
    if (!out.flush() || !out.commit()) {
        if (error)
            *error = out.errorString();
        return false;
    }
    return true;
}

bool writeAtomically(const QString& path, const QByteArray& bytes, QString* error) {
    if (!isWritableTarget(path, error))
        return false;
    QSaveFile file(path);
    // Unbuffered: a small file would otherwise sit in the buffer until commit(), which does
    // not notice that writing it out failed and puts the cut file in place of the earlier one.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, bytes, error) &&
        file.commit())
        return true;
    if (error && (file.error() != QFileDevice::NoError || error->isEmpty()))
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
