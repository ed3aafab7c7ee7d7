#include "reports/ReportCommand.h"

#include "model/ManagedObjectContext.h"
#include "model/Numbers.h"
#include "platform/core/Files.h"
#include "platform/core/WindowSize.h"
#include "reports/CoinDocument.h"
#include "reports/GroupReport.h"

#include <QTextDocument>

#include <cstdio>

namespace {
// The breakdown list's width in the window as it first opens: the list shows as a table,
// across the whole window, so the pictures come out as large as the window's Share draws them.
constexpr qreal kScreenWidth = WindowSize::FirstWidth;
} // namespace

namespace ReportCommand {
QString check(const QStringList& arguments) {
    if (arguments.size() != 2 || !GroupReport::named(arguments[0]))
        return Usage;
    if (arguments[0] == QLatin1String("year") && !Numbers::parseInt16(arguments[1]))
        return Usage + QStringLiteral("\nthe year must be a whole number from -32768 to 32767");
    return {};
}

int run(ManagedObjectContext& context, const QString& collection, const QStringList& arguments,
        const QString& pdfFile) {
    if (const QString wrong = check(arguments); !wrong.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(wrong));
        return 2;
    }
    const GroupReport& report = *GroupReport::named(arguments[0]);
    // As the breakdown list opens: ascending.
    CoinGroup group{report.kind, arguments[1], true};
    if (group.kind == GroupKind::Year)
        group.value = QString::number(*Numbers::parseInt16(group.value));
    const QString path =
        pdfFile.isEmpty() ? Files::documentsDirectory() + report.pdfFileName : pdfFile;
    if (const Result<void> target = Files::isWritableTarget(path); !target.ok()) {
        std::fprintf(stderr, "Cannot write %s: %s\n", qPrintable(path),
                     qPrintable(target.error().message));
        return 1;
    }
    // A store that cannot be read is not taken for a group without coins, nor a damaged
    // picture for a coin without one.
    auto unreadable = [&collection](const Error& error) {
        std::fprintf(stderr, "Cannot read the collection %s: %s\n", qPrintable(collection),
                     qPrintable(error.message));
        return 1;
    };
    context.takeReadError();
    const Result<QList<CoinPtr>> found = context.tryFetch<Coins>(GroupReport::listRequest(group));
    if (!found.ok())
        return unreadable(found.error());
    const QList<CoinPtr>& coins = found.value();
    if (coins.isEmpty()) {
        std::fprintf(stderr, "No coins with the %s %s in %s: nothing written to %s.\n",
                     qPrintable(arguments[0]), qPrintable(arguments[1]), qPrintable(collection),
                     qPrintable(path));
        return 1;
    }
    const auto document =
        GroupReport::report(group, coins, kScreenWidth / 6, CoinDocument::originalsIn(context));
    if (auto error = context.takeReadError())
        return unreadable(*error);
    // Said as the breakdown's share button says it, but a failure goes to stderr.
    if (const Result<void> written = Files::writeAtomically(path, CoinDocument::pdf(*document));
        !written.ok()) {
        std::fprintf(stderr, "Cannot write %s: %s\n", qPrintable(path),
                     qPrintable(written.error().message));
        return 1;
    }
    std::printf("wrote PDF file with multiple pages to: %s\n", qPrintable(path));
    return 0;
}
} // namespace ReportCommand
