#include "StoreFixture.h"
#include "exchange/ExchangeReader.h"

#include <functional>

using Exchange::mergeExchangeText;

namespace {
QByteArray corpusFile(const char* name) {
    return readFile(QStringLiteral(PELVANE_TEST_DATA "/exchange/") + QLatin1String(name));
}

struct CorpusCase {
    const char* file;
    int created, updated, skipped;
    bool wrongFile;
    // What the store holds afterwards, when the file gives one coin.
    std::function<void(StoreTest&, const CoinPtr& only)> check;
};
} // namespace

// Real and broken exchange files, each named after what it catches, merged into a fresh store.
TEST_F(StoreTest, ExchangeFileCorpus) {
    const QList<CorpusCase> cases = {
        {"short-line-keys-are-empty-text.csv", 2, 0, 0, false, {}},
        {"missing-year-is-year-zero.csv", 1, 1, 0, false,
         [](StoreTest&, const CoinPtr& c) {
             EXPECT_EQ(c->year(), 0);
             EXPECT_EQ(c->quantity(), 4);
         }},
        {"crlf-line-ends.csv", 2, 0, 0, false, {}},
        {"marker-on-a-later-line.csv", 2, 0, 0, false, {}},
        {"quotes-are-dropped.csv", 1, 0, 0, false,
         [](StoreTest&, const CoinPtr& c) {
             EXPECT_EQ(c->country(), "Canada");
             EXPECT_EQ(c->quantity(), 3);
             EXPECT_FALSE(c->hasValue(Coins::Attr::designer)); // only quotes: left unset
         }},
        {"apostrophes-are-dropped.csv", 1, 0, 0, false,
         [](StoreTest&, const CoinPtr& c) { EXPECT_EQ(c->descrip(), "OBriens harp"); }},
        {"commas-become-semicolons.csv", 1, 0, 0, false,
         [](StoreTest&, const CoinPtr& c) {
             EXPECT_EQ(c->denomination(), "Half Dollar; Walking Liberty");
             EXPECT_EQ(c->notes(), "fine; toned\nsecond line");
         }},
        {"bad-base64-picture.csv", 1, 0, 0, false,
         [](StoreTest&, const CoinPtr& c) {
             EXPECT_FALSE(c->hasValue(Coins::Attr::frontImage));
             EXPECT_FALSE(c->hasValue(Coins::Attr::backImage));
         }},
        {"picture-that-is-no-jpeg.csv", 1, 0, 0, false,
         [](StoreTest&, const CoinPtr& c) {
             EXPECT_FALSE(c->hasValue(Coins::Attr::frontImage)); // the export could not write it
         }},
        {"no-marker-line.csv", 0, 0, 0, true, {}},
    };
    for (const CorpusCase& k : cases) {
        SCOPED_TRACE(k.file);
        for (const CoinPtr& c : fetch())
            ctx().deleteObject(c);
        ASSERT_TRUE(ctx().save().ok());
        const auto r = mergeExchangeText(ctx(), corpusFile(k.file));
        EXPECT_EQ(r.wrongFile, k.wrongFile);
        EXPECT_EQ(r.created, k.created);
        EXPECT_EQ(r.updated, k.updated);
        EXPECT_EQ(r.skipped, k.skipped);
        const auto all = fetch();
        EXPECT_EQ(all.size(), k.created);
        if (k.check) {
            ASSERT_EQ(all.size(), 1);
            k.check(*this, all.first());
        }
    }
    // A line with more fields than attributes stops the import, whatever the line would do:
    // create a coin (none matches), update one (one matches) or be skipped (two match).
    for (const CoinPtr& c : fetch())
        ctx().deleteObject(c);
    ASSERT_TRUE(ctx().save().ok());
    for (int matching = 0; matching <= 2; ++matching) {
        SCOPED_TRACE(matching);
        EXPECT_DEATH(mergeExchangeText(ctx(), corpusFile("twenty-three-fields.csv")),
                     "ImportViewController:262: Fatal error");
        coin("Chile", "1 Peso", 1990, "So");
        ASSERT_TRUE(ctx().save().ok());
    }
}
