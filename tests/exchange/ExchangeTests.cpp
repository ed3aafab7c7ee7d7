#include "StoreFixture.h"
#include "exchange/ExchangeCommands.h"
#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "platform/graphics/ImageCoding.h"

#include <QPainter>
#include <QThreadPool>

using Exchange::exchangeText;
using Exchange::mergeExchangeText;

namespace {
QByteArray picture(int hue) {
    QImage img(100, 100, QImage::Format_RGB32);
    img.fill(QColor::fromHsv(hue % 360, 120, 200));
    QPainter p(&img);
    p.setBrush(QColor::fromHsv((hue + 90) % 360, 200, 150));
    p.drawEllipse(10, 10, 80, 80);
    p.end();
    return ImageCoding::coinPictureData(img);
}
} // namespace

TEST_F(StoreTest, WriterLayoutIsByteExact) {
    EXPECT_EQ(exchangeText(ctx()).value(), QByteArray("[PELVANE]\n"));

    auto c = coin("Canada", "1 Cent", 1965, QString(), 2, 0.5f);
    c->setTotalValue(1.0f);
    c->setNotes("two\nlines");
    c->setId(7);
    EXPECT_EQ(
        exchangeText(ctx()).value(),
        QByteArray("[PELVANE]\nCanada^1 Cent^^^0.0^^^^^two~lines^^2^^^0.0^1.0^0.5^0.0^1965^^7\n"));

    // Carets leave notes and descriptions only; other texts are written as they stand.
    c->setDescrip("a^b");
    c->setNotes("x^y");
    c->setDesigner("d^e");
    const QList<QByteArray> fields = exchangeText(ctx()).value().split('\n')[1].split('^');
    EXPECT_EQ(fields[2], "ab");
    EXPECT_EQ(fields[3], "d");
    EXPECT_EQ(fields[4], "e");

    // Order by denomination, year, mint mark; the record number glued to the back picture.
    ctx().deleteObject(c);
    coin("USA", "Dime", 1964, "D");
    coin("USA", "Dime", 1964, "P");
    coin("USA", "Dime", 1950, "S");
    auto cent = coin("USA", "Cent", 1999, "P");
    cent->setBackImage(picture(10));
    cent->setId(12);
    cent->setDiameter(1e-05);
    const QList<QByteArray> lines = exchangeText(ctx()).value().split('\n');
    ASSERT_EQ(lines.size(), 6);
    EXPECT_TRUE(lines[1].startsWith("USA^Cent^"));
    EXPECT_TRUE(lines[2].contains("^1950^"));
    EXPECT_TRUE(lines[3].contains("^D^"));
    EXPECT_TRUE(lines[4].contains("^P^"));
    EXPECT_TRUE(lines[2].endsWith("^^0"));
    EXPECT_TRUE(lines[1].endsWith("12"));
    const QList<QByteArray> centFields = lines[1].split('^');
    EXPECT_EQ(centFields.size(), 21);
    EXPECT_EQ(centFields[4], "1e-05");
    const QByteArray back = centFields[20].chopped(2);
    const QImage decoded = ImageCoding::decode(*ImageCoding::strictBase64Decode(back));
    EXPECT_EQ(decoded.size(), QSize(100, 100));
    EXPECT_EQ(lines[5], "");
}

// The pictures are coded on every core a window at a time; the file is the one a single
// thread writes, picture for picture and in order, across the windows' edges.
TEST_F(StoreTest, TheWriterOnEveryCoreWritesWhatOneThreadWrites) {
    QList<QByteArray> pictures;
    for (int i = 0; i < 700; ++i) {
        auto c = coin("Peru", QStringLiteral("%1 Soles").arg(i, 4, 10, QLatin1Char('0')), 1990);
        // Distinct pictures, a few repeated far apart, and coins without one.
        if (i % 50 != 7)
            c->setFrontImage(picture(i % 300 == 5 ? 5 : i));
        if (i % 3 == 0)
            c->setBackImage(picture(1000 + i));
        pictures << c->frontImage() << c->backImage();
    }
    ASSERT_TRUE(ctx().save().ok());
    QThreadPool& pool = *QThreadPool::globalInstance();
    const int cores = pool.maxThreadCount();
    pool.setMaxThreadCount(8);
    const QByteArray parallel = exchangeText(ctx()).value();
    pool.setMaxThreadCount(1);
    const QByteArray single = exchangeText(ctx()).value();
    pool.setMaxThreadCount(cores);
    EXPECT_EQ(parallel, single);

    const QList<QByteArray> lines = parallel.split('\n');
    ASSERT_EQ(lines.size(), 702);
    for (int i = 0; i < 700; ++i) {
        const QList<QByteArray> fields = lines[i + 1].split('^');
        ASSERT_EQ(fields.size(), 21);
        ASSERT_TRUE(fields[1].startsWith(QByteArray::number(i).rightJustified(4, '0')));
        const QByteArray& front = pictures[2 * i];
        EXPECT_EQ(fields[19],
                  front.isNull() ? QByteArray() : ImageCoding::reencodeJpeg(front, 0.6).toBase64())
            << "coin " << i;
        const QByteArray& back = pictures[2 * i + 1];
        EXPECT_EQ(fields[20].chopped(1),
                  back.isNull() ? QByteArray() : ImageCoding::reencodeJpeg(back, 0.6).toBase64())
            << "coin " << i;
    }
}

// The export lets go of the pictures it has read from the store, not of one changed and not
// saved yet: that one is exported, kept and saved later.
TEST_F(StoreTest, TheExportKeepsAPictureNotSavedYet) {
    auto peru = coin("Peru", "1 Sol", 1990);
    peru->setFrontImage(picture(10));
    auto chile = coin("Chile", "1 Peso", 1990);
    chile->setFrontImage(picture(20));
    ASSERT_TRUE(ctx().save().ok());
    peru->setFrontImage(picture(30));
    const QByteArray text = exchangeText(ctx()).value();
    EXPECT_TRUE(text.contains(ImageCoding::reencodeJpeg(picture(30), 0.6).toBase64()));
    EXPECT_TRUE(text.contains(ImageCoding::reencodeJpeg(picture(20), 0.6).toBase64()));
    EXPECT_EQ(peru->frontImage(), picture(30));
    EXPECT_EQ(chile->frontImage(), picture(20)); // read again from the store
    ASSERT_TRUE(ctx().save().ok());
    OtherConnection disk(path("Pelvane.sqlite"));
    EXPECT_EQ(disk.number("SELECT length(frontImage) FROM Coins_pictures WHERE pk = " +
                          QByteArray::number(peru->objectID())),
              picture(30).size());
}

TEST_F(StoreTest, ReaderMergesByTheFourKeys) {
    const QString file = "some header\n\n\n\n\n\n\n\n\n[PELVANE]\r\n"
                         "Canada^1 Cent^^^19.05^^^^P^a~b^^2^^^1.5^1.0^0.5^2.5e-3^1965^^7\r\n"
                         "Ireland^1 Penny^O'Brien^\"\"^^^^^^^^1^^^^^^^1928\r\n"
                         "Peru^1 Sol^short line\r\n";
    auto r = mergeExchangeText(ctx(), file);
    EXPECT_FALSE(r.wrongFile);
    EXPECT_EQ(r.created, 4); // every other line is read as a coin, even above the marker
    EXPECT_EQ(fetch(eq("country == %@", "some header")).size(), 1);
    auto canada = fetch(eq("country == %@", "Canada"));
    ASSERT_EQ(canada.size(), 1);
    EXPECT_EQ(canada[0]->notes(), "a\nb");
    EXPECT_EQ(canada[0]->weight(), 0.0025);
    EXPECT_EQ(canada[0]->thickness(), 1.5);
    EXPECT_EQ(canada[0]->id(), 0);
    EXPECT_FALSE(canada[0]->hasValue(Coins::Attr::backImage)); // "7" is no base64

    // Again: Canada (all three texts present) is found and updated, left unsaved; the others
    // carry an absent mint mark, match nothing and come in a second time.
    const QString again = "[PELVANE]\nCanada^1 Cent^^^xx^^^^P^^^3^^^^^^^1965^^\n"
                          "Ireland^1 Penny^^^^^^^^^^1^^^^^^^1928\n";
    r = mergeExchangeText(ctx(), again);
    EXPECT_EQ(r.updated, 1);
    EXPECT_EQ(r.created, 1);
    EXPECT_EQ(canada[0]->quantity(), 3);
    EXPECT_EQ(canada[0]->diameter(), 0.0); // a bad number in an update clears it to 0
    EXPECT_EQ(fetch(eq("country == %@", "Ireland")).size(), 2);

    EXPECT_DEATH(mergeExchangeText(ctx(), QByteArray("[PELVANE]\nChile^1 Peso^^^1.2.3\n")),
                 "Fatal error");
    r = mergeExchangeText(ctx(), QByteArray("Canada^1 Cent\n[pelvane]\n"));
    EXPECT_TRUE(r.wrongFile);
    EXPECT_EQ(r.created, 0);
}

// Texts are taken from the file's bytes without going through UTF-16, yet saved, read and
// compared exactly as the text they spell; bytes that are no UTF-8 become U+FFFD.
TEST_F(StoreTest, ReaderSavesTextsAsTheTextTheySpell) {
    const QByteArray file =
        "[PELVANE]\n"
        "M\xC3\xA9xico^5 Centavos^\xF0\x9F\xAA\x99 \"coin\"^bad \xFF\xC3^^^^^Mo^"
        "x~y\xC3\xA9~^^^^^^^^^1970\n";
    EXPECT_EQ(mergeExchangeText(ctx(), file).created, 1);
    const QString mexico = QString::fromUtf8("M\xC3\xA9xico");
    auto saved = fetch(eq("country == %@", mexico));
    ASSERT_EQ(saved.size(), 1);
    EXPECT_EQ(saved[0]->denomination(), "5 Centavos");
    EXPECT_EQ(saved[0]->descrip(), QString::fromUtf8("\xF0\x9F\xAA\x99 coin"));
    EXPECT_EQ(saved[0]->designer(), QString::fromUtf8("bad \xFF\xC3"));
    EXPECT_EQ(saved[0]->notes(), QString::fromUtf8("x\ny\xC3\xA9\n"));

    // The same line again changes nothing; a changed text reads back before and after saving.
    auto r = mergeExchangeText(ctx(), file);
    EXPECT_EQ(r.updated, 1);
    EXPECT_FALSE(ctx().hasChanges());
    const QByteArray changed = QByteArray(file).replace("x~y", "z~");
    EXPECT_EQ(mergeExchangeText(ctx(), changed).updated, 1);
    EXPECT_TRUE(ctx().hasChanges());
    EXPECT_EQ(saved[0]->notes(), QString::fromUtf8("z\n\xC3\xA9\n"));
    ASSERT_TRUE(ctx().save().ok());
    saved.clear();
    reopen();
    EXPECT_EQ(fetch(eq("notes == %@", QString::fromUtf8("z\n\xC3\xA9\n"))).size(), 1);
}

// The import saves its updates before it returns.
TEST_F(StoreTest, CommandLineImportSavesBeforeReturning) {
    coin("Chile", "1 Peso", 1990, "So");
    ASSERT_TRUE(ctx().save().ok());
    ASSERT_EQ(Exchange::runExport(ctx(), path("Pelvane.csv")), 0);
    ASSERT_EQ(Exchange::runImport(ctx(), path("Pelvane.csv")), 0);
    EXPECT_FALSE(ctx().hasChanges()); // the update was saved before returning
    EXPECT_EQ(fetch().size(), 1);
}

TEST_F(StoreTest, RoundTripToASecondDevice) {
    for (int i = 0; i < 200; ++i) {
        auto c = coin(i % 7 ? QStringLiteral("Country %1").arg(i % 13) : QString(),
                      QStringLiteral("%1 Cents").arg(i % 17), 1900 + i % 120,
                      QStringLiteral("M%1").arg(i % 3), i % 9, float(i) / 8);
        c->setNotes(QStringLiteral("note %1\nsecond line").arg(i));
        c->setDiameter(i * 0.37);
        c->setWeight(1.0 / (i + 1));
        c->setTotalValue(float(i) * 0.3f);
        c->setGradeNumber("MS/PF-65");
        c->setId(qint16(i));
        if (i % 2)
            c->setFrontImage(picture(i));
        c->setBackImage(picture(i + 7));
    }
    ASSERT_TRUE(ctx().save().ok());
    const QByteArray file = exchangeText(ctx()).value();

    PersistentContainer::setDefaultDirectory(path("other-device"));
    PersistentContainer device(QStringLiteral("Pelvane"));
    device.loadPersistentStores({});
    auto& other = *device.viewContext();
    const auto r = mergeExchangeText(other, QString::fromUtf8(file));
    EXPECT_EQ(r.created, 200);
    FetchRequest all(QStringLiteral("Coins"));
    all.sortDescriptors = {{"denomination", true}, {"year", true}, {"mintMark", true}};
    const auto copies = other.fetch<Coins>(all);
    ASSERT_EQ(copies.size(), 200);
    const auto sorted = fetch({}, {{"denomination", true}, {"year", true}, {"mintMark", true}});
    for (int i = 0; i < 200; ++i) {
        const Coins& a = *sorted[i];
        const Coins& b = *copies[i];
        SCOPED_TRACE(i);
        EXPECT_EQ(a.denomination(), b.denomination());
        EXPECT_EQ(a.country().isEmpty() ? QString() : a.country(), b.country());
        EXPECT_EQ(a.notes(), b.notes());
        EXPECT_EQ(a.diameter(), b.diameter());
        EXPECT_EQ(a.weight(), b.weight());
        EXPECT_EQ(a.value(), b.value());
        EXPECT_EQ(a.totalValue(), b.totalValue());
        EXPECT_EQ(a.quantity(), b.quantity());
        EXPECT_EQ(a.year(), b.year());
        EXPECT_EQ(b.id(), 0);
        EXPECT_FALSE(b.hasValue(Coins::Attr::backImage));
        if (a.hasValue(Coins::Attr::frontImage))
            EXPECT_EQ(b.frontImage(), ImageCoding::jpeg(ImageCoding::decode(a.frontImage()), 0.6));
        else
            EXPECT_FALSE(b.hasValue(Coins::Attr::frontImage));
    }
}
