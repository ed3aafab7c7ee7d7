#include "fuzz/FuzzEntries.h"

#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "model/Entity.h"
#include "model/PersistentContainer.h"
#include "platform/core/Fatal.h"
#include "platform/graphics/ImageCoding.h"

#include <QBuffer>
#include <QByteArray>
#include <QGuiApplication>
#include <QImageReader>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sqlite3.h>
#include <vector>

namespace FuzzEntries {

namespace {
struct DesignedStop {};

// Pixels: a 1,024 x 1,024 picture, ten times what a coin picture is redrawn to.
constexpr qint64 kLargestFuzzedPicture = 1024 * 1024;

QString& stopText() {
    static QString text;
    return text;
}

std::unique_ptr<PersistentContainer>& store() {
    static std::unique_ptr<PersistentContainer> container;
    return container;
}

// A fresh, empty store in memory: the last connection to close takes the old one with it.
void openStore() {
    store().reset();
    store() = std::make_unique<PersistentContainer>(QStringLiteral("Pelvane"));
    store()->loadPersistentStores([](const StoreDescription&, const std::optional<Error>& e) {
        if (e)
            qFatal("cannot make the store: %s", qPrintable(e->description()));
    });
}

// Every row deleted through a connection of its own, its statements prepared once: making the
// store anew would parse the schema and every statement again for each input.
void emptyStore() {
    store()->viewContext()->reset();
    static const struct Deletes {
        Deletes() {
            sqlite3_open_v2(qPrintable(store()->storePath()), &db,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI, nullptr);
            for (const EntityDescription* e : Model::entities())
                for (const QString& table : {e->name, e->dataTable()}) {
                    sqlite3_stmt* st = nullptr;
                    if (sqlite3_prepare_v2(
                            db, qPrintable(QStringLiteral("DELETE FROM \"%1\"").arg(table)), -1,
                            &st, nullptr) == SQLITE_OK)
                        statements.push_back(st);
                }
        }
        ~Deletes() {
            for (sqlite3_stmt* st : statements)
                sqlite3_finalize(st);
            sqlite3_close(db);
        }
        sqlite3* db = nullptr;
        std::vector<sqlite3_stmt*> statements;
    } deletes;
    for (sqlite3_stmt* st : deletes.statements) {
        if (sqlite3_step(st) != SQLITE_DONE)
            qFatal("cannot empty the store");
        sqlite3_reset(st);
    }
}

// Stops are thrown from the caller's thread only: the export decodes on other threads but
// stops on its own. The handler is there only while an input runs, so tests around it keep
// the ordinary stop.
template <typename Run> Outcome guarded(Run run) {
    const Fatal::Handler previous =
        Fatal::setHandler([](const QString& message, const char* source, int line) {
            stopText() = Fatal::report(message, source, line);
            throw DesignedStop{};
        });
    Outcome outcome = Outcome::Done;
    try {
        run();
    } catch (const DesignedStop&) {
        outcome = Outcome::Stopped;
    }
    Fatal::setHandler(previous);
    return outcome;
}
} // namespace

void startApplication(int* argc, char*** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static QGuiApplication app(*argc, *argv);
    // The image plugins' complaints about broken pictures, written for nearly every input,
    // are no finding; only a fatal message is.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    prepare();
}

void prepare() {
    static bool done = false;
    if (done)
        return;
    done = true;
    // Every input makes a store; in memory, that costs what the merge itself costs.
    PersistentContainer::setInMemory(true);
    openStore();
}

Outcome mergeAndExport(const uint8_t* data, std::size_t size) {
    prepare();
    ManagedObjectContext& context = *store()->viewContext();
    bool madeCoins = true; // unless the merge says otherwise
    const Outcome outcome = guarded([&] {
        madeCoins = Exchange::mergeExchangeText(
                        context, QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)))
                        .created > 0;
        if (const auto error = context.save(); !error.ok())
            qFatal("save failed: %s", qPrintable(error.error().description()));
        (void)Exchange::exchangeText(context).value();
    });
    // Most inputs make no coin (no marker line, no line after it): the store is still
    // empty then. A stop may leave a new coin pending: the context forgets it with the rest.
    if (madeCoins)
        emptyStore();
    return outcome;
}

Outcome picture(const uint8_t* data, std::size_t size) {
    prepare();
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    // A header may claim any size up to the decoder's limit, and filling tens of megapixels
    // with grey costs a hundred times what the rest of an input does while reaching no new
    // code: such inputs stop at the size check. Beyond the limit they still go through decode,
    // whose refusal is cheap and is what is tested.
    {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        const QSize claimed = QImageReader(&buffer).size();
        if (claimed.isValid() && ImageCoding::saneSize(claimed.width(), claimed.height()) &&
            qint64(claimed.width()) * claimed.height() > kLargestFuzzedPicture)
            return Outcome::Done;
    }
    return guarded([&] {
        const QImage image = ImageCoding::decode(bytes);
        // The import's quick check must answer as the decoder does, or the import keeps a
        // picture the export cannot write (or drops one it could).
        if (ImageCoding::readable(bytes) == image.isNull())
            qFatal("the quick check of a picture disagrees with the decoder");
        (void)ImageCoding::reencodeJpeg(bytes, 0.6);
        if (!image.isNull())
            (void)ImageCoding::coinPictureData(image);
    });
}

QString lastStop() {
    return stopText();
}

} // namespace FuzzEntries
