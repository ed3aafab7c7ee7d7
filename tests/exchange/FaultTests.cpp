#include "StoreFixture.h"
#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "platform/core/Fatal.h"
#include "platform/core/Files.h"
#include "platform/graphics/ImageCoding.h"

#include <QDir>
#include <QElapsedTimer>

using Exchange::exchangeText;
using Exchange::mergeExchangeText;

namespace {
// A device that takes N bytes and then fails, as a disk that goes away would.
class FailingDevice : public QIODevice {
public:
    explicit FailingDevice(qint64 capacity)
        : capacity_(capacity) {
        open(QIODevice::WriteOnly);
    }
    QByteArray written;

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override {
        const qint64 n = std::min(size, capacity_ - qint64(written.size()));
        if (n <= 0) {
            setErrorString(QStringLiteral("Input/output error"));
            return -1;
        }
        written.append(data, n);
        return n;
    }

private:
    qint64 capacity_;
};
} // namespace

// The stop the export makes at a picture it cannot decode says which coin to fix, and a
// header that claims 60000 x 60000 pixels is such a picture, refused before it is allocated.
TEST_F(StoreTest, PictureThatCannotBeDecodedNamesItsCoin) {
    auto c = coin("Canada", "1 Cent", 1965);
    c->setBackImage("1234"); // record-number digits taken for a picture by an import
    EXPECT_DEATH(exchangeText(ctx()).value(),
                 "ExportViewController:160: Fatal error: .*the back picture "
                 "of 1 Cent, 1965, Canada cannot be decoded");
    c->setBackImage(QByteArray());
    c->setFrontImage(jpegClaiming(60000, 60000));
    QElapsedTimer timer;
    timer.start();
    EXPECT_DEATH(exchangeText(ctx()).value(), "the front picture of 1 Cent, 1965, Canada");
    EXPECT_LT(timer.elapsed(), 10000);
}

// Another program holding the store: the merge goes on, but waits for the lock once, not
// once per line, and says how many coins were not saved and why.
TEST_F(StoreTest, MergeIntoABusyStoreDoesNotWaitPerLine) {
    coin("Peru", "1 Sol", 1990, "L");
    ASSERT_TRUE(ctx().save().ok());
    OtherConnection other(path("Pelvane.sqlite"));
    ASSERT_EQ(other.exec("BEGIN IMMEDIATE; INSERT INTO GradeNumbers(grade) VALUES ('MS-70')"), 0);
    QByteArray file = "[PELVANE]\n";
    for (int i = 0; i < 8; ++i)
        file += QStringLiteral("Chile^%1 Pesos^^^^^^^^^^^^^^^^^1990^^\n").arg(i).toUtf8();
    file += "Peru^1 Sol^^^^^^^L^^^5^^^^^^^1990^^\n";
    QElapsedTimer timer;
    timer.start();
    const auto r = mergeExchangeText(ctx(), file);
    EXPECT_LT(timer.elapsed(), 3000);
    EXPECT_EQ(r.created, 8);
    EXPECT_EQ(r.updated, 1);
    EXPECT_EQ(r.notSaved, 8);
    EXPECT_EQ(r.updatedSinceSave, 1);
    EXPECT_EQ(r.notSavedReason, "database is locked");
    // The lock gone, the coins left pending are saved, and waiting is back for later saves.
    ASSERT_EQ(other.exec("ROLLBACK"), 0);
    EXPECT_TRUE(ctx().save().ok());
    EXPECT_EQ(fetch().size(), 9);
}

// The merge commits its saves a group at a time. A group whose writes fail (a full disk) is
// counted as not saved, not one coin of it is in the file, and the next save writes each of
// its coins once, with the changes later lines made to them.
TEST_F(StoreTest, CoinsOfAGroupThatCouldNotBeWrittenWaitForTheNextSave) {
    coin("Peru", "1 Sol", 1990, "L");
    ASSERT_TRUE(ctx().save().ok());
    QImage noise(100, 100, QImage::Format_RGB32);
    QByteArray file = "[PELVANE]\n";
    for (int i = 0; i < 700; ++i) {
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 100; ++x)
                noise.setPixel(x, y, qRgb((x * i) % 256, (y * 7 + i) % 256, (x ^ y) % 256));
        file += "Chile^" + QByteArray::number(i) + " Pesos^^^^^^^S^^^1^^^^^^^1990^" +
                ImageCoding::coinPictureData(noise).toBase64() + "^\n";
    }
    file += "Peru^1 Sol^^^^^^^L^^^5^^^^^^^1990^^\n";    // a stored coin
    file += "Chile^3 Pesos^^^^^^^S^^^7^^^^^^^1990^^\n"; // one the file made
    Exchange::ImportResult r;
    {
        FileSizeLimit limit(768 * 1024);
        ASSERT_TRUE(limit.isSet());
        r = mergeExchangeText(ctx(), file);
    }
    EXPECT_EQ(r.created, 700);
    EXPECT_EQ(r.updated, 2);
    EXPECT_GT(r.notSaved, 0);
    EXPECT_FALSE(r.notSavedReason.isEmpty());
    OtherConnection disk(path("Pelvane.sqlite"));
    EXPECT_EQ(disk.number("SELECT count(*) FROM Coins"), 1 + r.created - r.notSaved);

    ASSERT_TRUE(ctx().save().ok());
    EXPECT_EQ(disk.number("SELECT count(*) FROM Coins"), 701);
    EXPECT_EQ(disk.number("SELECT count(DISTINCT denomination) FROM Coins WHERE country = 'Chile'"),
              700);
    EXPECT_EQ(disk.number("SELECT count(*) FROM Coins_pictures WHERE frontImage IS NOT NULL"), 700);
    EXPECT_EQ(disk.number("SELECT quantity FROM Coins WHERE denomination = '3 Pesos'"), 7);
    EXPECT_EQ(disk.number("SELECT quantity FROM Coins WHERE denomination = '1 Sol'"), 5);
    EXPECT_EQ(fetch().size(), 701);
}

// A file cut short is still merged as far as it goes, and the merge says so.
TEST_F(StoreTest, LastLineWithoutLineEndIsMergedAndNoted) {
    auto r = mergeExchangeText(ctx(), QByteArray("[PELVANE]\nChile^1 Peso^^^^^^^^^^^^^^^^^1990"));
    EXPECT_TRUE(r.lastLineUnended);
    EXPECT_EQ(r.created, 1);
    r = mergeExchangeText(ctx(), QByteArray("[PELVANE]\nChile^2 Pesos^^^^^^^^^^^^^^^^^1990\n"));
    EXPECT_FALSE(r.lastLineUnended);
}

// Writes that fail part-way leave the earlier file whole and give the system's reason.
TEST_F(PelvaneTest, FailedWritesKeepTheEarlierFileAndTellWhy) {
    const QByteArray earlier = "[PELVANE]\nthe earlier backup\n";
    ASSERT_TRUE(Files::writeAtomically(path("Pelvane.csv"), earlier).ok());
    const QByteArray bigger(200000, 'x');

    FailingDevice device(4096);
    const Result<void> broken = Files::writeAll(device, bigger);
    ASSERT_FALSE(broken.ok());
    EXPECT_EQ(broken.error().message, "Input/output error");
    EXPECT_EQ(device.written.size(), 4096);

    // A full disk: every write to /dev/full fails as one to a full file system does.
    QFile full(QStringLiteral("/dev/full"));
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const Result<void> fullDisk = Files::writeAll(full, bigger);
    ASSERT_FALSE(fullDisk.ok());
    EXPECT_EQ(fullDisk.error().message, "No space left on device");

    // A file-size limit, as a full or quota-bound disk gives.
    Result<void> written;
    {
        FileSizeLimit limit(4096);
        ASSERT_TRUE(limit.isSet());
        written = Files::writeAtomically(path("Pelvane.csv"), bigger);
    }
    ASSERT_FALSE(written.ok());
    EXPECT_EQ(written.error().message, "File too large");
    EXPECT_EQ(readFile(path("Pelvane.csv")), earlier);
    EXPECT_EQ(QDir(dir()).entryList(QDir::Files), QStringList({"Pelvane.csv"}));
}

// A designed stop goes through the handler, so fuzzing and tests can tell it from a crash.
TEST(Fatal, HandlerSeesTheDesignedStop) {
    struct Stop {
        QString text;
    };
    const Fatal::Handler previous = Fatal::setHandler(
        [](const QString& m, const char* s, int l) { throw Stop{Fatal::report(m, s, l)}; });
    try {
        fatalError(QStringLiteral("A line has more than 22 fields"), "Pelvane/ImportViewController",
                   262);
        ADD_FAILURE() << "went on past a fatal stop";
    } catch (const Stop& stop) {
        EXPECT_EQ(stop.text, "Pelvane/ImportViewController:262: Fatal error: A line has more than "
                             "22 fields");
    }
    Fatal::setHandler(previous);
    EXPECT_DEATH(fatalError(QStringLiteral("x"), "here", 1), "here:1: Fatal error: x");
}
