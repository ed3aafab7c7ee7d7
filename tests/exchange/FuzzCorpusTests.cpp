#include "TestSupport.h"
#include "fuzz/FuzzEntries.h"

#include <QDir>
#include <QMap>

using FuzzEntries::Outcome;

namespace {
// The message of each designed stop, by file name.
QMap<QString, QString> stops;

// Every file of a corpus folder through one entry point; a crash or a sanitizer report ends
// the test, a designed stop is an answer. The outcome of each, by file name.

template <typename Entry> QMap<QString, Outcome> runCorpus(const char* folder, Entry entry) {
    QMap<QString, Outcome> outcomes;
    const QDir dir(QStringLiteral(PELVANE_TEST_DATA "/") + QLatin1String(folder));
    for (const QString& name : dir.entryList(QDir::Files)) {
        const QByteArray bytes = readFile(dir.filePath(name));
        outcomes[name] =
            entry(reinterpret_cast<const uint8_t*>(bytes.constData()), std::size_t(bytes.size()));
        if (outcomes[name] == Outcome::Stopped)
            stops[name] = FuzzEntries::lastStop();
    }
    EXPECT_FALSE(outcomes.isEmpty()) << folder;
    return outcomes;
}
} // namespace

// The fuzz targets' seed corpus and every input that once failed, run as the targets run them.
TEST_F(PelvaneTest, FuzzCorpusRunsThroughTheFuzzEntries) {
    const auto exchange = runCorpus("exchange", FuzzEntries::mergeAndExport);
    // A picture the export could not write would stop every export: the import keeps the coin
    // without it.
    EXPECT_EQ(exchange.value("forged-picture-size-is-dropped-at-import.csv"), Outcome::Done);
    EXPECT_EQ(exchange.value("back-picture-of-record-digits-is-dropped-at-import.csv"),
              Outcome::Done);
    EXPECT_EQ(exchange.value("twenty-three-fields.csv"), Outcome::Stopped);
    EXPECT_EQ(exchange.value("last-line-without-line-end.csv"), Outcome::Done);
    EXPECT_EQ(exchange.value("crlf-line-ends.csv"), Outcome::Done);

    const auto pictures = runCorpus("pictures", FuzzEntries::picture);
    EXPECT_EQ(pictures.value("forged-size-60000x60000.jpg"), Outcome::Done);
    // The stores of the other tests, as pictures: bytes that are no picture at all.
    runCorpus("stores", FuzzEntries::picture);
}
