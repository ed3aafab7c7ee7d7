// The PDF report of the three breakdown lists and the print screen, read back from the files
// they write.
#include "GroupsFixture.h"
#include "PdfPages.h"
#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/kit/Views.h"
#include "reports/CoinDocument.h"
#include "screens/ProcessState.h"
#include "screens/groups/PrintCoinsViewController.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

namespace {
int pictureCount(const QTextDocument& document) {
    return int(document.toPlainText().count(QChar::ObjectReplacementCharacter));
}

struct ReportCase {
    int tab;
    QString groupValue;
    QString title;
    QString fileName;
    QStringList coins; // "Coin Denomination: ... Coin Year: ..." of each coin, in list order
    QString typed;     // a search that keeps the last coins only
    QStringList found;
};

const ReportCase kReports[] = {
    {0, "Dime", "Coins Filtered by Denomination: Dime", "CoinListByDenomination.pdf",
     QStringList{"Dime Coin Year: 1964", "Dime Coin Year: 1999", "Dime Coin Year: 2001"}, "99",
     QStringList{"Dime Coin Year: 1999"}},
    {1, "USA", "Coins Filtered by Country: USA", "CoinListByCountry.pdf",
     QStringList{"Dime Coin Year: 1964", "Dime Coin Year: 1999", "Quarter Coin Year: 1964"}, "q",
     QStringList{"Quarter Coin Year: 1964"}},
    {2, "1964", "Coins Filtered by Year: 1964", "CoinListByYear.pdf",
     QStringList{"Dime Coin Year: 1964", "Quarter Coin Year: 1964", "cent Coin Year: 1964"}, "t",
     QStringList{"Quarter Coin Year: 1964", "cent Coin Year: 1964"}},
};
} // namespace

class ReportTest : public GroupsTest {
protected:
    void SetUp() override {
        GroupsTest::SetUp();
        addCoin("Dime", 1999, 2, 1.25f, "USA", "D")->setFrontImage(coinPicture(Qt::red));
        addCoin("Dime", 1964, 1, 0.5f, "USA", "P");
        auto quarter = addCoin("Quarter", 1964, 3, 2.0f, "USA", "S");
        quarter->setFrontImage(coinPicture(Qt::red)); // the same picture as the 1999 dime
        quarter->setBackImage(coinPicture(Qt::blue));
        addCoin("cent", 1964, 1, 0.1f, "Canada", "P");
        addCoin("Dime", 2001, 4, 1.0f, "Canada", "P");
        ASSERT_TRUE(ctx().save().ok());
    }
    QString documents() const { return dir() + "/Documents/"; }
};

TEST_F(ReportTest, EachBreakdownWritesItsCoinsInOrderOnA4AndOffersTheFile) {
    for (const ReportCase& k : kReports) {
        SCOPED_TRACE(k.fileName.toStdString());
        BreakdownTableViewController* b = openBreakdown(k.tab, k.groupValue);
        ASSERT_NE(b, nullptr);
        Console::startCapture();
        fakes.shareSheet->presented.clear();
        barButton(b, "ShareButton")->click();
        const QString path = documents() + k.fileName;
        EXPECT_EQ(Console::captured(),
                  QStringList{"wrote PDF file with multiple pages to: " + path});
        ASSERT_EQ(fakes.shareSheet->presented.size(), 1);
        EXPECT_EQ(fakes.shareSheet->presented[0].items.value(0).url, QUrl::fromLocalFile(path));
        EXPECT_TRUE(fakes.shareSheet->presented[0].excluded.isEmpty());

        PdfPages pdf(path);
        ASSERT_EQ(pdf.count(), 1);
        EXPECT_TRUE(pdf.isA4(0));
        EXPECT_TRUE(pdf.all().startsWith(k.title + " Coin Denomination: "))
            << pdf.all().toStdString();
        EXPECT_TRUE(pdf.inOrder(k.coins)) << pdf.all().toStdString();

        // A search narrows the report, and the title names the first coin found.
        search(b->searchController, k.typed);
        barButton(b, "ShareButton")->click();
        PdfPages found(path);
        EXPECT_TRUE(found.inOrder(k.found)) << found.all().toStdString();
        EXPECT_EQ(found.all().count("Coin Denomination: "), k.found.size());
        // Nothing found: nothing to name the report after.
        search(b->searchController, "no such coin");
        EXPECT_FALSE(barButton(b, "ShareButton")->isEnabled());
        b->searchController->clear();
        EXPECT_TRUE(barButton(b, "ShareButton")->isEnabled());
        window.reset();
        window = std::make_unique<Window>(menu = new MainMenuViewController);
        window->show();
    }
}

TEST_F(ReportTest, TheDocumentFollowsTheLineRulesAndKeepsEachPictureOnce) {
    auto coin = addCoin("Penny", 1900, 1, 0.0f, "", "");
    coin->setDiameter(3.14159265358979);
    coin->setNotes("worn");
    coin->setDescrip("");
    auto quarter = all<Coins>("denomination").value(4); // Quarter: a red front, a blue back
    ASSERT_EQ(quarter->denomination(), "Quarter");
    auto dime = all<Coins>("year").last(); // the 2001 dime: a picture that does not decode
    dime->setFrontImage("not a picture");
    auto document = CoinDocument::report("Title", {coin, quarter, dime, quarter}, 65);
    const QString text = document->toPlainText();
    EXPECT_TRUE(text.startsWith("Title\n\nCoin Denomination: Penny\nCoin Year: 1900\nQuantity: 1\n"
                                "Description: \nDiameter: 3.1415927\nWeight: 0.0\nThickness: 0.0\n"
                                "Mint Mark: \nValue: 0.0\nNotes: worn\n\n\nCoin Denomination: "))
        << text.toStdString();
    EXPECT_FALSE(text.section("Coin Denomination: Quarter", 0, 0).contains("Country: "));
    // The red picture once, the blue one once, the broken one never, each shown where it
    // belongs: two pictures for each of the two quarters.
    EXPECT_EQ(pictureCount(*document), 4);
    EXPECT_TRUE(text.contains(QStringLiteral("\uFFFC   \uFFFC   \n\n")));
    EXPECT_TRUE(document->resource(QTextDocument::ImageResource, QUrl("coin-picture-0")).isValid());
    EXPECT_TRUE(document->resource(QTextDocument::ImageResource, QUrl("coin-picture-1")).isValid());
    EXPECT_FALSE(
        document->resource(QTextDocument::ImageResource, QUrl("coin-picture-3")).isValid());

    // The title centred in Arial 21 with its line feeds in the clear colour; the blocks left in
    // the one fixed font.
    const QTextBlock title = document->begin();
    EXPECT_EQ(title.blockFormat().alignment(), Qt::AlignHCenter);
    const QTextCharFormat titleFormat = title.begin().fragment().charFormat();
    EXPECT_EQ(titleFormat.fontFamilies().toStringList(), QStringList{"Arial"});
    EXPECT_EQ(titleFormat.fontPointSize(), 21);
    EXPECT_EQ(title.next().charFormat().foreground().color(), QColor(Qt::transparent));
    const QTextBlock firstLine = title.next().next();
    EXPECT_EQ(firstLine.text(), "Coin Denomination: Penny");
    EXPECT_EQ(firstLine.blockFormat().alignment(), Qt::AlignLeft);
    EXPECT_EQ(firstLine.begin().fragment().charFormat().font().family(),
              CoinDocument::blockFont().family());
}

TEST_F(ReportTest, BadInputStillGivesTheWholeReport) {
    auto coin = addCoin("Dime", 1950, 1, 0.1f, "مصر", "P");
    coin->setNotes(QString(10000, 'n') + " end of notes");
    coin->setDescrip(QStringLiteral("中国硬币 😀"));
    coin->setFrontImage("broken bytes");
    ASSERT_TRUE(ctx().save().ok());
    BreakdownTableViewController* b = openBreakdown(0, "Dime");
    barButton(b, "ShareButton")->click();
    PdfPages pdf(documents() + "CoinListByDenomination.pdf");
    ASSERT_GE(pdf.count(), 2);
    const QString text = pdf.all();
    // Right-to-left text comes back in the order it is drawn.
    EXPECT_TRUE(text.contains(QStringLiteral("مصر :Country"))) << text.left(200).toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("中国硬币"))) << text.left(2000).toStdString();
    // The emoji is drawn from a fallback font too, but Qt's PDF text layer maps no character
    // beyond the first 65,536 back, so it cannot be read back here.
    EXPECT_TRUE(text.contains("end of notes"));
    // Every one of the 10,000 characters, across the pages they fill, as the pages show them.
    QProcess pdftotext;
    pdftotext.start("pdftotext", {documents() + "CoinListByDenomination.pdf", "-"});
    ASSERT_TRUE(pdftotext.waitForFinished(30000));
    const QString shown = QString::fromUtf8(pdftotext.readAllStandardOutput())
                              .remove(QRegularExpression("[ \\n\\f]"));
    EXPECT_TRUE(shown.contains("Notes:" + QString(10000, 'n') + "endofnotes"));
    EXPECT_TRUE(
        pdf.inOrder({"Coin Year: 1950", "Coin Year: 1964", "Coin Year: 1999", "Coin Year: 2001"}));

    // A documents folder that cannot be written (a file in its place, which stops root too):
    // the console says why and the share sheet still comes.
    ASSERT_TRUE(QDir(documents()).removeRecursively());
    writeFile(dir() + "/Documents", {});
    Console::startCapture();
    fakes.shareSheet->presented.clear();
    barButton(b, "ShareButton")->click();
    ASSERT_EQ(Console::captured().size(), 1) << Console::captured().join("|").toStdString();
    EXPECT_TRUE(Console::captured()[0].startsWith("Could not create PDF file: "));
    EXPECT_EQ(fakes.shareSheet->presented.size(), 1);
}

TEST_F(ReportTest, WithoutTextMessagesOnlyTheAlertComes) {
    fakes.messages->canSend = false;
    BreakdownTableViewController* b = openBreakdown(0, "Dime");
    barButton(b, "ShareButton")->click();
    QTRY_VERIFY(b->presentedAlert() != nullptr);
    EXPECT_EQ(alertText(),
              "Can't Send Text Message / Your device is not able to send text messages.");
    EXPECT_TRUE(fakes.shareSheet->presented.isEmpty());
    EXPECT_FALSE(QFile::exists(documents() + "CoinListByDenomination.pdf"));
}

// The report carries each coin's picture as it is stored, once however many coins show it,
// at a sixth of the screen's width; a picture stored in another format is drawn as well.
TEST_F(ReportTest, TheReportCarriesTheStoredPicturesThemselves) {
    QImage green(30, 30, QImage::Format_RGB32);
    green.fill(Qt::green);
    addCoin("Nickel", 1950, 1, 0.05f, "USA", "D")->setFrontImage(encodedImage(green, "png"));
    ASSERT_TRUE(ctx().save().ok());
    BreakdownTableViewController* b = openBreakdown(1, "USA");
    barButton(b, "ShareButton")->click();
    const QByteArray bytes = readFile(documents() + "CoinListByCountry.pdf");
    EXPECT_EQ(bytes.count(coinPicture(Qt::red)), 1); // the dime's and the quarter's front
    EXPECT_EQ(bytes.count(coinPicture(Qt::blue)), 1);
    EXPECT_TRUE(PdfPages::crossReferencesHold(bytes));
    PdfPages pdf(bytes);
    ASSERT_EQ(pdf.count(), 2);
    EXPECT_NEAR(redWidth(pdf.pdf->render(0, (pdf.size(0) * 2).toSize())) / 2.0, b->width() / 6.0,
                2);
    int greens = 0;
    for (int at = 0; at < pdf.count(); ++at) {
        const QImage page = pdf.pdf->render(at, pdf.size(at).toSize());
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x)
                if (const QColor c = page.pixelColor(x, y); c.green() > 200 && c.red() < 60)
                    ++greens;
    }
    EXPECT_GT(greens, 100);
}

TEST_F(ReportTest, ALongReportShowsItsProgressAndGivesTheSameFile) {
    for (int i = 0; i < BreakdownTableViewController::ReportInBackgroundFrom; ++i)
        addCoin("Dime", 1700 + i, 1, 0.1f, "USA", "P")->setFrontImage(coinPicture(Qt::green));
    ASSERT_TRUE(ctx().save().ok());
    BreakdownTableViewController* b = openBreakdown(0, "Dime");
    barButton(b, "ShareButton")->click();
    EXPECT_TRUE(b->isWritingReport());
    EXPECT_TRUE(b->ProgressView_->isVisible());
    EXPECT_FALSE(barButton(b, "ShareButton")->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(!fakes.shareSheet->presented.isEmpty(), 60000);
    EXPECT_FALSE(b->ProgressView_->isVisible());
    EXPECT_FLOAT_EQ(b->ProgressView_->progress(), 1.0f);
    PdfPages drawnAside(documents() + "CoinListByDenomination.pdf");
    const QByteArray aside = readFile(documents() + "CoinListByDenomination.pdf");
    EXPECT_EQ(aside.count(coinPicture(Qt::green)), 1);
    EXPECT_TRUE(PdfPages::crossReferencesHold(aside));

    auto document =
        CoinDocument::report("Coins Filtered by Denomination: Dime", b->CoinList, b->width() / 6.0);
    ASSERT_TRUE(
        CoinDocument::writePdfFile(dir() + "/direct.pdf", CoinDocument::pdf(*document)).ok());
    PdfPages direct(dir() + "/direct.pdf");
    EXPECT_GT(direct.count(), 10);
    EXPECT_EQ(drawnAside.texts, direct.texts);
    EXPECT_TRUE(barButton(b, "ShareButton")->isEnabled());
}

TEST_F(ReportTest, ThePrintScreenListsTheGroupInTheGroupScreensOrderAndPrintsIt) {
    fakes.printController->outputFile = dir() + "/printed.pdf";
    SortAscending = false;
    BreakdownTableViewController* b = openBreakdown(1, "USA");
    search(b->searchController, "d"); // has no effect on the listing
    barButton(b, "PrintButton")->click();
    auto* print =
        dynamic_cast<PrintCoinsViewController*>(b->navigationController()->topViewController());
    ASSERT_NE(print, nullptr);
    EXPECT_EQ(print->CoinList.size(), 3);
    print->CreateFileButton->click();
    const QString listing = print->FileTextView->toPlainText();
    EXPECT_TRUE(
        listing.startsWith("Coins Filtered by Country: USA\n\nCountry: USA\nDenomination: "
                           "Quarter\nYear: 1964 - Qty: 3 - Total Value (Qty * Value): "
                           "$6.00\n\uFFFC   \uFFFC   \n\nCountry: USA\nDenomination: Dime\n"))
        << listing.toStdString();
    EXPECT_EQ(pictureCount(*print->FileTextView->document()), 3);
    // Each picture is a sixth of the view's width: in pixels on the screen, in points on paper.
    const double sixth = print->width() / 6.0;
    EXPECT_NEAR(redWidth(print->FileTextView->viewport()->grab().toImage()), sixth, 2);

    print->PrintButton->click();
    EXPECT_EQ(fakes.printController->presented, 1);
    EXPECT_TRUE(fakes.printController->showedNumberOfCopies);
    EXPECT_TRUE(Console::captured().contains("Image is Printed"));
    PdfPages printed(dir() + "/printed.pdf");
    ASSERT_EQ(printed.count(), 1);
    EXPECT_TRUE(
        printed.inOrder({"Coins Filtered by Country: USA", "Denomination: Quarter",
                         "Year: 1964 - Qty: 3", "Denomination: Dime", "Denomination: Dime"}))
        << printed.all().toStdString();
    const QImage page = printed.pdf->render(0, (printed.size(0) * 2).toSize());
    EXPECT_NEAR(redWidth(page) / 2.0, sixth, 2);
    // Cancelled: nothing printed, nothing said.
    fakes.printController->outputFile.clear();
    Console::startCapture();
    print->PrintButton->click();
    EXPECT_TRUE(Console::captured().isEmpty());
}

// A store that cannot be read gives the breakdown and the print screen nothing to show; each
// says why on the console, as every screen does.
TEST_F(ReportTest, FailedFetchesArePrintedAndLeaveTheScreensEmpty) {
    BreakdownTableViewController* b = openBreakdown(0, "Dime");
    ASSERT_EQ(b->CoinList.size(), 3);
    ASSERT_EQ(OtherConnection(dir() + "/Pelvane.sqlite").exec("DROP TABLE Coins"), 0);
    QApplication::processEvents(); // the read begun before ends
    Console::startCapture();
    barButton(b, "SortButton")->click(); // fetches the group again
    EXPECT_EQ(b->tableView->numberOfRows(0), 0);
    EXPECT_EQ(b->tableView->headerTitle(0), "# of Coins: 0");
    ASSERT_EQ(Console::captured().size(), 1);
    EXPECT_TRUE(Console::captured().first().startsWith("Could not fetch. "));

    barButton(b, "PrintButton")->click();
    auto* print = dynamic_cast<PrintCoinsViewController*>(tabs->tab(0)->topViewController());
    ASSERT_NE(print, nullptr);
    EXPECT_TRUE(print->CoinList.isEmpty());
    ASSERT_EQ(Console::captured().size(), 2);
    EXPECT_TRUE(Console::captured().last().startsWith("Could not fetch. "));
    print->CreateFileButton->click();
    EXPECT_EQ(alertText(), "Empty Data Set! / No Coins to Print!");
}

TEST_F(ReportTest, TheYearListingNamesTheYearTwiceAndAnEmptyGroupHidesPrinting) {
    BreakdownTableViewController* b = openBreakdown(2, "1964");
    barButton(b, "PrintButton")->click();
    auto* print =
        dynamic_cast<PrintCoinsViewController*>(b->navigationController()->topViewController());
    ASSERT_NE(print, nullptr);
    print->CreateFileButton->click();
    EXPECT_TRUE(print->FileTextView->toPlainText().contains(
        "Year: 1964\nDenomination: Quarter\nCountry: USA\nYear: 1964 - Qty: 3 - Total Value (Qty * "
        "Value): $6.00\n\uFFFC   \uFFFC   \n\n"));

    CalledFromList = "Master";
    auto* empty = new PrintCoinsViewController;
    b->navigationController()->pushViewController(empty);
    empty->CreateFileButton->click();
    ASSERT_NE(empty->presentedAlert(), nullptr);
    EXPECT_EQ(alertText(), "Empty Data Set! / No Coins to Print!");
    EXPECT_TRUE(empty->PrintButton->isHidden());
}

// A disk that fills up or a file-size limit part-way through leaves the earlier report whole
// and says why.
TEST_F(ReportTest, AWriteCutShortKeepsTheEarlierReport) {
    BreakdownTableViewController* b = openBreakdown(0, "Dime");
    barButton(b, "ShareButton")->click();
    const QString path = documents() + "CoinListByDenomination.pdf";
    const QByteArray earlier = readFile(path);
    ASSERT_GT(earlier.size(), 4096);

    addCoin("Dime", 1800, 1, 1.0f, "USA", "P");
    b->load();
    {
        FileSizeLimit limit(4096);
        ASSERT_TRUE(limit.isSet());
        Console::startCapture();
        fakes.shareSheet->presented.clear();
        barButton(b, "ShareButton")->click();
    }
    EXPECT_EQ(Console::captured(), QStringList{"Could not create PDF file: File too large"});
    EXPECT_EQ(fakes.shareSheet->presented.size(), 1);
    EXPECT_EQ(readFile(path), earlier);
    EXPECT_EQ(QDir(documents()).entryList(QDir::Files), QStringList{"CoinListByDenomination.pdf"});
}
