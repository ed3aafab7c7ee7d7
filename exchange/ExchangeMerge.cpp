// The merge of an exchange file's lines into the collection, a few lines a step, each step's
// saves committed together.
#include "exchange/ExchangeLines.h"

#include "model/ManagedObjectContext.h"
#include "model/PersistentContainer.h"
#include "model/PrintedFetch.h"
#include "model/Records.h"
#include "platform/core/Console.h"
#include "platform/core/Fatal.h"

#include <QLocale>
#include <QtConcurrent/QtConcurrentMap>

#include <array>
#include <utility>
#include <vector>

namespace Exchange {

namespace {

// The import's four key conditions ("country == %@", ...), in the order of their index.
const std::array<QString, CoinAttributes::importKeyCount>& keyFormats() {
    static const auto formats = [] {
        std::array<QString, CoinAttributes::importKeyCount> f;
        for (int k = 0; k < CoinAttributes::importKeyCount; ++k)
            f[std::size_t(k)] =
                QLatin1String(CoinAttributes::importKey(k).name) + QLatin1String(" == %@");
        return f;
    }();
    return formats;
}

} // namespace

Merge::Merge(ManagedObjectContext& context, QByteArray utf8, const QString& source)
    : context_(context)
    , cause_(context, ValueHistory::Import)
    , journalStep_(context, Journal::Import,
                   source.isEmpty() ? QStringLiteral("an exchange file") : source)
    , text_(std::move(utf8)) {
    // A second container for the same model, opened and released: a store that cannot be
    // opened stops the import before any line is read.
    {
        PersistentContainer second(QStringLiteral("Pelvane"));
        second.loadPersistentStores([](const StoreDescription&, const std::optional<Error>& error) {
            if (error)
                unresolvedError(*error, StopSites::ImportStoreLoad);
        });
    }

    Lines read = readLines(text_);
    lines_ = std::move(read.lines);
    lineNumbers_ = std::move(read.numbers);
    result_.wrongFile = read.wrongFile;
    result_.lastLineUnended = read.lastLineUnended;
}

Merge::~Merge() {
    preparing_.waitForFinished();
    if (waitChanged_)
        context_.setWaitWhenBusy(true);
}

void Merge::prepare(qsizetype from) {
    preparing_.waitForFinished();
    preparingFrom_ = from;
    preparingLines_ = lines_.mid(from, std::min(PreparedLines, lines_.size() - from));
    preparing_ = QtConcurrent::mapped(preparingLines_, preparePictures);
}

// The pictures of a few lines are worked out while the lines before them are merged.
const PreparedLine& Merge::picturesOf(qsizetype line) {
    if (line < preparedFrom_ || line >= preparedFrom_ + prepared_.size()) {
        if (!preparing_.isValid() || preparingFrom_ != line)
            prepare(line);
        prepared_ = preparing_.results();
        preparedFrom_ = line;
        if (line + prepared_.size() < lines_.size())
            prepare(line + prepared_.size());
    }
    return prepared_[line - preparedFrom_];
}

// Waiting for the lock again on every line would take hours for a big file.
void Merge::dontWaitWhenBusy() {
    context_.setWaitWhenBusy(false);
    waitChanged_ = true;
}

bool Merge::step(qsizetype count) {
    if (result_.wrongFile)
        return false;
    ManagedObjectContext& context = context_;
    ImportResult& result = result_;
    // The saves of a step are committed together, and before the merge stops: a commit per
    // coin would write each index page again for every coin.
    ManagedObjectContext::SaveGroup group(context);
    // What the group's saves wrote and a failed commit would leave unsaved.
    int heldCreated = 0, heldUpdated = 0;
    auto commit = [&] {
        if (const Result<void> committed = group.commit(); !committed.ok()) {
            Console::log(committed.error().description());
            if (result.notSaved == 0)
                result.notSavedReason = committed.error().message;
            result.notSaved += heldCreated;
            result.updatedSinceSave += heldUpdated;
        }
        heldCreated = heldUpdated = 0;
    };
    const qsizetype stop = std::min(lines_.size(), next_ + std::max<qsizetype>(count, 1));
    for (; next_ < stop; ++next_) {
        if (group.held() >= SavesPerCommit)
            commit();
        const Fields fields = splitFields(lines_[next_]);
        const PreparedLine& pictures = picturesOf(next_);
        // A line with more fields than there are attributes is no line of ours, whether it
        // would create, update or be skipped.
        if (fields.size() > CoinAttributes::count) {
            commit();
            fatalError(QStringLiteral("A line has more than 22 fields"),
                       StopSites::ImportFieldCount);
        }
        // The lookup and the save that follows it hold the write lock together, so that two
        // imports of one file never both find a coin missing and both create it.
        if (const Result<void> locked = context.beginWriteBatch();
            !locked.ok() && locked.error().isBusy())
            dontWaitWhenBusy();
        // The key texts and the request go before the coin is written: a huge field is then
        // held as text once, not three times.
        const Result<QList<CoinPtr>> found = [&] {
            std::vector<Predicate> keys;
            keys.reserve(CoinAttributes::importKeyCount);
            for (int k = 0; k < CoinAttributes::importKeyCount; ++k)
                keys.push_back(Predicate::format(
                    keyFormats()[std::size_t(k)],
                    fieldText(fields, CoinAttributes::importKey(k).filePosition)));
            FetchRequest request(QStringLiteral("Coins"));
            request.predicate = Predicate::andPredicate(keys);
            request.returnsObjectsAsFaults = false;
            return fetchOrPrint<Coins>(context, request);
        }();
        if (!found.ok() && found.error().isBusy())
            dontWaitWhenBusy();
        const QList<CoinPtr> results = found.valueOr({});
        // What the line changes in the collection's pieces.
        auto notePieces = [&](int change) {
            if (change != 0)
                result.pieceChanges.append({lineNumbers_[next_], change});
        };
        if (results.isEmpty()) {
            auto coin = context.insert<Coins>();
            apply(*coin, fields, true, pictures, commit);
            notePieces(coin->quantity());
            if (const auto failure = context.save(); !failure.ok()) {
                Console::log(failure.error().description());
                if (result.notSaved++ == 0)
                    result.notSavedReason = failure.error().message;
                if (failure.error().isBusy())
                    dontWaitWhenBusy();
            } else {
                // A save writes every coin left pending before it.
                heldCreated += result.notSaved + 1;
                heldUpdated += result.updatedSinceSave;
                result.notSaved = 0;
                result.updatedSinceSave = 0;
            }
            ++result.created;
        } else if (results.size() == 1) {
            // Left pending on purpose: the next save of the context writes it.
            const int before = results.first()->quantity();
            apply(*results.first(), fields, false, pictures, commit);
            notePieces(results.first()->quantity() - before);
            ++result.updated;
            ++result.updatedSinceSave;
        } else {
            ++result.skipped;
        }
    }
    commit();
    // The journal says what the import did in the words the command line prints.
    const QLocale english(QLocale::English);
    journalStep_.setDetail(
        QStringLiteral("%1 created, %2 updated")
            .arg(english.toString(result.created), english.toString(result.updated)));
    return next_ < lines_.size();
}

ImportResult mergeExchangeText(ManagedObjectContext& context, QByteArray text) {
    Merge merge(context, std::move(text));
    while (merge.step(merge.lineCount())) {
    }
    return merge.result();
}

} // namespace Exchange
