#include "platform/core/Files.h"

#include "platform/core/ProtectedFiles.h"

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

namespace {
QString& picturesSetting() {
    static QString dir;
    return dir;
}
} // namespace

QString picturesDirectory() {
    QString dir = picturesSetting();
    if (dir.isEmpty())
        dir = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    QDir().mkpath(dir);
    return dir.endsWith(QLatin1Char('/')) ? dir : dir + QLatin1Char('/');
}

void setPicturesDirectory(const QString& dir) {
    picturesSetting() = dir;
}

namespace {
Error writing(const QString& path, const QString& why) {
    return Error::because(ErrorCode::CantOpen, why, QStringLiteral("writing ") + path);
}
} // namespace

Result<void> writeAll(QIODevice& device, const QByteArray& bytes) {
    // A write cut short by a full disk or a size limit reports no reason; the next one fails
    // with the system's.
    qint64 n = 0;
    for (qint64 done = 0; done < bytes.size(); done += n)
        if ((n = device.write(bytes.constData() + done, bytes.size() - done)) <= 0)
            return Error::because(ErrorCode::CantOpen, device.errorString());
    return {};
}

Result<void> isWritableTarget(const QString& path) {
    // Renaming a new file over a device node or a pipe would replace it, even for root.
    if (const QString why = protectedReason(path); !why.isEmpty())
        return writing(path, why);
    const QFileInfo info(path);
    if (!info.exists() || info.isFile())
        return {};
    return writing(path, QStringLiteral("it is not a regular file"));
}

Result<void> copyAtomically(const QString& from, const QString& to) {
    if (Result<void> target = isWritableTarget(to); !target.ok())
        return target;
    QFile in(from);
    if (!in.open(QIODevice::ReadOnly))
        return Error::because(ErrorCode::CantOpen, in.errorString(),
                              QStringLiteral("reading ") + from);
    QSaveFile out(to);
    if (!out.open(QIODevice::WriteOnly))
        return writing(to, out.errorString());
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(1 << 20);
        if (chunk.isEmpty() && in.error() != QFileDevice::NoError) {
            out.cancelWriting();
            return Error::because(ErrorCode::CantOpen, in.errorString(),
                                  QStringLiteral("reading ") + from);
        }
        if (const Result<void> written = writeAll(out, chunk); !written.ok()) {
            out.cancelWriting();
            return writing(to, written.error().message);
        }
    }
    if (!out.flush() || !out.commit())
        return writing(to, out.errorString());
    return {};
}

Result<void> writeAtomically(const QString& path, const QByteArray& bytes) {
    if (Result<void> target = isWritableTarget(path); !target.ok())
        return target;
    QSaveFile file(path);
    // Unbuffered: a small file would otherwise sit in the buffer until commit(), which does
    // not notice that writing it out failed and puts the cut file in place of the earlier one.
    QString why;
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        const Result<void> written = writeAll(file, bytes);
        if (written.ok() && file.commit())
            return {};
        if (!written.ok())
            why = written.error().message;
    }
    if (file.error() != QFileDevice::NoError || why.isEmpty())
        why = file.errorString();
    return writing(path, why);
}

Result<void> writeTextAtomically(const QString& path, const QString& text) {
    return writeAtomically(path, text.toUtf8());
}

Result<QString> readText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error::because(ErrorCode::CantOpen, file.errorString(),
                              QStringLiteral("reading ") + path);
    const QByteArray bytes = file.readAll();
    auto encoding = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    QString text = decoder(bytes);
    if (decoder.hasError())
        return Error::because(ErrorCode::CantOpen,
                              QStringLiteral("The file is not text in a known encoding."),
                              QStringLiteral("reading ") + path);
    return text;
}

} // namespace Files
