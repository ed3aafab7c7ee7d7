#include "exchange/CommandLine.h"

#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "model/ManagedObjectContext.h"
#include "platform/Files.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace Exchange {

namespace {
void say(const QString& line) {
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}
} // namespace

int runExport(ManagedObjectContext& context, const QString& file) {
    StoreError readError;
    const QByteArray bytes = exchangeText(context, {}, &readError);
    // A file from a store that could not be read whole would replace a good backup.
    if (readError.code != 0) {
        say(QStringLiteral("Cannot read the collection: %1").arg(readError.message));
        return 1;
    }
    QString error;
    if (!Files::writeAtomically(file, bytes, &error)) {
        say(QStringLiteral("Cannot write %1: %2").arg(file, error));
        return 1;
    }
    return 0;
}

int runImport(ManagedObjectContext& context, const QString& file) {
    // A device or a pipe may never end (/dev/zero): only a file of known size is read.
    const QFileInfo info(file);
    if (info.exists() && !info.isFile()) {
        say(QStringLiteral("Cannot read %1: it is not a regular file").arg(file));
        return 1;
    }
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly)) {
        say(QStringLiteral("Cannot read %1: %2").arg(file, in.errorString()));
        return 1;
    }
    std::optional<QByteArray> text = utf8Text(in.readAll());
    in.close();
    if (!text) {
        say(QStringLiteral("Cannot read %1: it is not text").arg(file));
        return 1;
    }
    const ImportResult result = mergeExchangeText(context, std::move(*text));
    if (result.wrongFile) {
        say(info.fileName() + QStringLiteral(" Is The Incorrect Import File"));
        return 2;
    }
    const auto error = context.save();
    std::printf("%d created, %d updated, %d skipped\n", result.created, result.updated,
                result.skipped);
    if (error) {
        // Every coin the merge left pending is lost with the process: say how many and why.
        say(QStringLiteral("%1 coins not saved: %2")
                .arg(result.notSaved + result.updatedSinceSave)
                .arg(error->message));
        return 1;
    }
    return 0;
}

} // namespace Exchange
