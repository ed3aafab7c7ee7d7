// The report and the printout draw a coin's picture from the photo it was made from, where the
// store keeps one: at 300 dpi in the picture's own box, read back from the PDF files.
#include "GroupsFixture.h"
#include "PdfPages.h"
#include "model/Originals.h"
#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "reports/CoinDocument.h"
#include "screens/groups/PrintCoinsViewController.h"

#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QRegularExpression>
#include <QTextDocument>

#include <cmath>

namespace {
// A photo: `left` on the left half, blue on the right, with a row of fine lines a downscale keeps
// as detail.
QByteArray photo(int width, int height, const QColor& left) {
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 2, height, left);
    painter.fillRect(width / 2, 0, width - width / 2, height, Qt::blue);
    painter.setPen(QPen(Qt::white, 3));
    for (int x = 0; x < width; x += 40)
        painter.drawLine(x, height / 3, x, height / 3 + 60);
    painter.end();
    return ImageCoding::jpeg(image, 0.9);
}

// The sizes of the PDF's images, as their objects declare them.
QList<QSize> imageSizes(const QByteArray& pdf) {
    static const QRegularExpression image(
        QStringLiteral(R"(/Subtype\s*/Image\s*/Width\s+(\d+)\s*/Height\s+(\d+))"));
    QList<QSize> sizes;
    for (auto it = image.globalMatch(QString::fromLatin1(pdf)); it.hasNext();) {
        const auto m = it.next();
        sizes << QSize(m.captured(1).toInt(), m.captured(2).toInt());
    }
    return sizes;
}

// Whether one of `sizes` has the shape of 4 : 3 and 300 dpi across a box `points` wide.
bool holdsDetailedPhoto(const QList<QSize>& sizes, double points) {
    const int needed = int(std::floor(points / 72 * 300));
    for (const QSize& s : sizes)
        if (s.width() >= needed && std::abs(double(s.width()) / s.height() - 4.0 / 3) < 0.01)
            return true;
    return false;
}

// The tallest run of red pixels in a column, and the widest on a row.
QSize redExtent(const QImage& image) {
    QSize most;
    const auto red = [&](int x, int y) {
        const QColor c = image.pixelColor(x, y);
        return c.red() > 180 && c.green() < 90 && c.blue() < 90;
    };
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0, run = 0; x < image.width(); ++x)
            most.setWidth(std::max(most.width(), run = red(x, y) ? run + 1 : 0));
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0, run = 0; y < image.height(); ++y)
            most.setHeight(std::max(most.height(), run = red(x, y) ? run + 1 : 0));
    return most;
}
} // namespace

class OriginalsReportTest : public GroupsTest {
protected:
    void SetUp() override {
        GroupsTest::SetUp();
        const QByteArray taken = photo(4000, 3000, Qt::red);
        withOriginal = addCoin("Dime", 1999, 2, 1.25f, "USA", "D");
        keepOriginal(*withOriginal, taken);
        plain = addCoin("Dime", 1964, 1, 0.5f, "USA", "P");
        plain->setFrontImage(coinPicture(Qt::green));
        damaged = addCoin("Dime", 2001, 4, 1.0f, "Canada", "P");
        const QByteArray other = photo(1200, 1000, Qt::yellow);
        damagedOriginal = keepOriginal(*damaged, other);
        ASSERT_TRUE(ctx().save().ok());
        // A bit of the other photo's file turned over after it was kept.
        QFile file(damagedOriginal.path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.seek(file.size() / 2);
        file.write("damage");
    }
    Originals::Original keepOriginal(Coins& coin, const QByteArray& bytes) {
        const Result<Originals::Original> kept =
            Originals::keep(ctx(), bytes, *ImageCoding::shownSize(bytes));
        EXPECT_TRUE(kept.ok());
        coin.setFrontImage(ImageCoding::coinPictureData(ImageCoding::decode(bytes)));
        EXPECT_TRUE(Originals::link(ctx(), coin.frontImage(), kept.value()).ok());
        return kept.value();
    }
    QString documents() const { return dir() + "/Documents/"; }

    CoinPtr withOriginal, plain, damaged;
    Originals::Original damagedOriginal;
};

// The shared report holds the photo at 300 dpi in its 4 : 3 shape, drawn inside the square box
// the stored picture fills; the coin without an original and the one whose original is damaged
// carry their stored pictures, and the damaged photo is named once on the console.
TEST_F(OriginalsReportTest, TheReportDrawsOriginalsAtPaperDetailAndFallsBackToTheStoredPicture) {
    BreakdownTableViewController* b = openBreakdown(0, "Dime");
    Console::startCapture();
    barButton(b, "ShareButton")->click();
    const QStringList said = Console::captured().filter(damagedOriginal.path);
    EXPECT_EQ(said.size(), 1) << Console::captured().join('\n').toStdString();

    const QByteArray bytes = readFile(documents() + "CoinListByDenomination.pdf");
    const double box = b->width() / 6.0;
    EXPECT_TRUE(holdsDetailedPhoto(imageSizes(bytes), box));
    EXPECT_EQ(bytes.count(plain->frontImage()), 1);
    EXPECT_EQ(bytes.count(damaged->frontImage()), 1);
    EXPECT_EQ(bytes.count(withOriginal->frontImage()), 0);
    EXPECT_TRUE(PdfPages::crossReferencesHold(bytes));
    // Small still: the photo goes in at the paper's detail, not its own.
    EXPECT_LT(bytes.size(), 400 * 1000);

    PdfPages pdf(bytes);
    ASSERT_GE(pdf.count(), 1);
    EXPECT_TRUE(pdf.inOrder({"Coin Year: 1964", "Coin Year: 1999", "Coin Year: 2001"}));
    // Four pixels a point: the photo's red half is half the box wide and three quarters of it
    // high.
    const QImage page = pdf.pdf->render(0, (pdf.size(0) * 4).toSize());
    const QSize red = redExtent(page);
    EXPECT_NEAR(red.height() / 4.0, box * 3 / 4, 2);

    // Without originals to draw, the document is the one it always was.
    const QList<CoinPtr> plainOnly{plain};
    const auto before = CoinDocument::report("Title", plainOnly, box);
    const auto now =
        CoinDocument::report("Title", plainOnly, box, CoinDocument::originalsIn(ctx()));
    const auto withoutDate = [](QByteArray pdf) {
        return pdf.remove(pdf.indexOf("/CreationDate"),
                          pdf.indexOf('\n', pdf.indexOf("/CreationDate")) -
                              pdf.indexOf("/CreationDate"));
    };
    EXPECT_EQ(withoutDate(CoinDocument::pdf(*before)), withoutDate(CoinDocument::pdf(*now)));
}

// The printout of the print screen draws the photo from its original too, and the shown
// listing keeps the stored pictures.
TEST_F(OriginalsReportTest, ThePrintoutDrawsOriginalsAtPaperDetail) {
    fakes.printController->outputFile = dir() + "/printed.pdf";
    BreakdownTableViewController* b = openBreakdown(0, "Dime");
    barButton(b, "PrintButton")->click();
    auto* print =
        dynamic_cast<PrintCoinsViewController*>(b->navigationController()->topViewController());
    ASSERT_NE(print, nullptr);
    print->CreateFileButton->click();
    Console::startCapture();
    print->PrintButton->click();
    EXPECT_EQ(Console::captured().filter(damagedOriginal.path).size(), 1);
    const QByteArray bytes = readFile(dir() + "/printed.pdf");
    EXPECT_TRUE(holdsDetailedPhoto(imageSizes(bytes), print->width() / 6.0));
    PdfPages printed(bytes);
    ASSERT_GE(printed.count(), 1);
    const QImage page = printed.pdf->render(0, (printed.size(0) * 4).toSize());
    EXPECT_NEAR(redExtent(page).height() / 4.0, print->width() / 6.0 * 3 / 4, 2);
}
