#include "screens/groups/ReportCommand.h"

#include "model/ManagedObjectContext.h"
#include "model/Numbers.h"
#include "platform/Files.h"
#include "screens/groups/BreakdownTableViewController.h"
#include "screens/groups/CoinDocument.h"

#include <QTextDocument>

#include <cstdio>

namespace {
using Kind = BreakdownTableViewController::Kind;

// The breakdown list's width in the window as the program opens it.
constexpr qreal kScreenWidth = 390;

const Kind* kindNamed(const QString& name) {
    if (name == QLatin1String("denomination"))
        return &Kind::denomination();
    if (name == QLatin1String("country"))
        return &Kind::country();
    if (name == QLatin1String("year"))
        return &Kind::year();
    return nullptr;
}
} // namespace

namespace ReportCommand {
QString check(const QStringList& arguments) {
    if (arguments.size() != 2 || !kindNamed(arguments[0]))
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
    const Kind& kind = *kindNamed(arguments[0]);
    QString value = arguments[1];
    if (&kind == &Kind::year())
        value = QString::number(*Numbers::parseInt16(value));
    const QString path =
        pdfFile.isEmpty() ? Files::documentsDirectory() + kind.pdfFileName : pdfFile;
    if (QString why; !Files::isWritableTarget(path, &why)) {
        std::fprintf(stderr, "Cannot write %s: %s\n", qPrintable(path), qPrintable(why));
        return 1;
    }
    // A store that cannot be read is not taken for a group without coins, nor a damaged
    // picture for a coin without one.
    auto unreadable = [&collection](const StoreError& error) {
        std::fprintf(stderr, "Cannot read the collection %s: %s\n", qPrintable(collection),
                     qPrintable(error.message));
        return 1;
    };
    context.takeReadError();
    StoreError failure;
    const QList<CoinPtr> coins = context.fetch<Coins>(kind.fetchRequest(value, true), &failure);
    if (failure.code != 0)
        return unreadable(failure);
    if (coins.isEmpty()) {
        std::fprintf(stderr, "No coins with the %s %s in %s: nothing written to %s.\n",
                     qPrintable(arguments[0]), qPrintable(arguments[1]), qPrintable(collection),
                     qPrintable(path));
        return 1;
    }
    const auto document = CoinDocument::report(kind.reportTitle + kind.titleValue(*coins.first()),
                                               coins, kScreenWidth / 6);
    if (auto error = context.takeReadError())
        return unreadable(*error);
    // Said as the breakdown's share button says it, but a failure goes to stderr.
    QString error;
    if (!Files::writeAtomically(path, CoinDocument::pdf(*document), &error)) {
        std::fprintf(stderr, "Cannot write %s: %s\n", qPrintable(path), qPrintable(error));
        return 1;
    }
    std::printf("wrote PDF file with multiple pages to: %s\n", qPrintable(path));
    return 0;
}
} // namespace ReportCommand
