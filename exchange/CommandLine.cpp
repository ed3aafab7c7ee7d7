#include "exchange/CommandLine.h"

#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "model/ManagedObjectContext.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

#include <utility>

#include <cstdio>

namespace Exchange {

namespace {
void say(const QString& line) {
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}
} // namespace

int runExport(ManagedObjectContext& context, const QString& file) {
    const QByteArray bytes = exchangeText(context);
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.commit()) {
        say(QStringLiteral("Cannot write %1: %2").arg(file, out.errorString()));
        return 1;
    }
    return 0;
}

int runImport(ManagedObjectContext& context, const QString& file) {
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly)) {
        say(QStringLiteral("Cannot read %1: %2").arg(file, in.errorString()));
        return 1;
    }
    const QByteArray bytes = in.readAll();
    QStringDecoder decoder(
        QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    if (decoder.hasError()) {
        say(QStringLiteral("Cannot read %1: it is not text").arg(file));
        return 1;
    }
    const ImportResult result = mergeExchangeText(context, text);
    if (result.wrongFile) {
        say(QFileInfo(file).fileName() + QStringLiteral(" Is The Incorrect Import File"));
        return 2;
    }
    if (auto error = context.save()) {
        say(QStringLiteral("Cannot save the collection: %1").arg(error->description()));
        return 1;
    }
    std::printf("%d created, %d updated, %d skipped\n", result.created, result.updated,
                result.skipped);
    return 0;
}

} // namespace Exchange
