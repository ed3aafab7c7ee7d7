#include "PdfPages.h"
#include "Program.h"
#include "TestSupport.h"
#include "screens/groups/GroupsFixture.h"

#include "platform/graphics/PageRenderer.h"
#include "reports/CoinDocument.h"

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextLayout>

// Scripts write the report of a group with no display at all.
TEST_F(PelvaneTest, TheReportRunsFromTheCommandLine) {
    const QString store = dir() + "/store";
    const QString collection = store + "/Pelvane.sqlite";
    ProgramRun r;
    auto run = [&](const QStringList& arguments) {
        r = runProgram(store, arguments);
        return r.exitCode;
    };
    ASSERT_EQ(run({"--import", PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv"}), 0);

    const QString file = dir() + "/wheat.pdf";
    EXPECT_EQ(run({"--report", "denomination", "1 Cent Lincoln Wheat", "--pdf", file}), 0);
    EXPECT_EQ(r.output, "wrote PDF file with multiple pages to: " + file + "\n");
    EXPECT_TRUE(r.errors.isEmpty()) << r.errors.toStdString();
    PdfPages wheat(file);
    ASSERT_EQ(wheat.count(), 2);
    EXPECT_TRUE(wheat.isA4(0));
    EXPECT_TRUE(wheat.all().startsWith("Coins Filtered by Denomination: 1 Cent Lincoln Wheat "
                                       "Coin Denomination: 1 Cent Lincoln Wheat Coin Year: 1909"))
        << wheat.all().toStdString();
    EXPECT_TRUE(wheat.inOrder({"Coin Year: 1909", "Coin Year: 1914"})) << wheat.all().toStdString();

    // The documents folder inside the data folder unless told otherwise.
    EXPECT_EQ(run({"--report", "year", "1909"}), 0);
    PdfPages year(store + "/Documents/CoinListByYear.pdf");
    EXPECT_TRUE(year.all().startsWith("Coins Filtered by Year: 1909 Coin Denomination: "));
    EXPECT_EQ(run({"--report", "country", "Canada"}), 0);
    PdfPages canada(store + "/Documents/CoinListByCountry.pdf");
    EXPECT_TRUE(canada.all().startsWith("Coins Filtered by Country: Canada Coin Denomination: "));
    EXPECT_FALSE(canada.all().contains("Country: USA"));

    // A year or a value below zero is a value, not an option; a negative quantity is reported
    // as it stands.
    writeFile(dir() + "/old.csv", "[PELVANE]\nRome^1 As^^^0.0^^^^^^^-1^^^0.0^0.0^0.5^0.0^-5^^\n");
    ASSERT_EQ(run({"--import", dir() + "/old.csv"}), 0);
    EXPECT_EQ(run({"--report", "year", "-5", "--pdf", dir() + "/rome.pdf"}), 0)
        << r.errors.toStdString();
    EXPECT_TRUE(PdfPages(dir() + "/rome.pdf")
                    .inOrder({"Coins Filtered by Year: -5", "Coin Year: -5", "Quantity: -1"}));
    EXPECT_EQ(run({"--pdf", dir() + "/as.pdf", "--report=denomination", "-1 As"}), 1);
    EXPECT_EQ(r.errors, "No coins with the denomination -1 As in " + collection +
                            ": nothing written to " + dir() + "/as.pdf.\n");

    EXPECT_EQ(run({"--report", "country", "Atlantis", "--pdf", dir() + "/none.pdf"}), 1);
    EXPECT_EQ(r.errors, "No coins with the country Atlantis in " + collection +
                            ": nothing written to " + dir() + "/none.pdf.\n");
    EXPECT_TRUE(r.output.isEmpty());
    EXPECT_FALSE(QFile::exists(dir() + "/none.pdf"));
    EXPECT_EQ(run({"--report", "colour", "red"}), 2);
    EXPECT_TRUE(r.errors.startsWith("usage: pelvane [--data-dir DIR] --report "
                                    "denomination|country|year VALUE [--pdf FILE]"));
    EXPECT_EQ(run({"--report", "year", "40000"}), 2);
    EXPECT_TRUE(r.errors.endsWith("the year must be a whole number from -32768 to 32767\n"));
    EXPECT_EQ(run({"--report", "year"}), 2);

    // --pdf belongs to a report, and a report is a command of its own.
    EXPECT_EQ(run({"--pdf", dir() + "/lost.pdf"}), 2);
    EXPECT_TRUE(r.errors.startsWith("pelvane: --pdf names where a --report goes, and there is no "
                                    "--report.\nUsage: pelvane [options]"));
    EXPECT_EQ(run({"--report", "year", "1909", "--export", dir() + "/x.csv"}), 2);
    EXPECT_TRUE(r.errors.startsWith("pelvane: --export and --report cannot be combined."));
    EXPECT_EQ(run({"--import", dir() + "/old.csv", "--report", "year", "1909"}), 2);
    EXPECT_TRUE(r.errors.startsWith("pelvane: --import and --report cannot be combined."));
    EXPECT_FALSE(QFile::exists(dir() + "/lost.pdf") || QFile::exists(dir() + "/x.csv"));

    // A file that cannot be written (its folder is a file): exit 1 and the reason, naming the
    // file. That an earlier file stays whole is the screen's test, through the same writer.
    EXPECT_EQ(run({"--report", "year", "1909", "--pdf", file + "/report.pdf"}), 1);
    EXPECT_TRUE(r.errors.startsWith("Cannot write " + file + "/report.pdf: "))
        << r.errors.toStdString();
    EXPECT_TRUE(r.output.isEmpty());
    EXPECT_EQ(PdfPages(file).texts, wheat.texts);
}

// Notes that never break (a pasted hash, a scan's text run together) fill every line to the
// edge of the page, one after the other, exactly as the text layout breaks them on its own,
// and no character is lost or doubled, also across page breaks.
TEST_F(PelvaneTest, NotesWithoutASpaceFillEachLineAsTheLayoutBreaksThem) {
    const QString store = dir() + "/store";
    QByteArray run;
    for (int i = 0; i < 40000; ++i)
        run += "WAVETo.yaff1Lj"[i % 14]; // wide and narrow letters, kerned pairs, ligatures
    writeFile(dir() + "/long.csv", "[PELVANE]\nChile^1 Peso^^^0.0^^^^^" + run +
                                       " and the end^^1^^^0.0^0.0^0.5^0.0^1990^^\n");
    ASSERT_EQ(runProgram(store, {"--import", dir() + "/long.csv"}).exitCode, 0);
    const QString file = dir() + "/long.pdf";
    const ProgramRun r = runProgram(store, {"--report", "country", "Chile", "--pdf", file});
    ASSERT_EQ(r.exitCode, 0) << r.errors.toStdString();

    // The lines the layout makes of the paragraph in one piece, on the page's width.
    QBuffer sink;
    sink.open(QIODevice::WriteOnly);
    QPdfWriter device(&sink);
    device.setResolution(72);
    QTextLayout layout("Notes: " + QString::fromLatin1(run) + " and the end",
                       CoinDocument::blockFont(), &device);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList expected;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(PageRenderer::a4().width());
        expected << layout.text().mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    ASSERT_GT(expected.size(), 300);

    PdfPages pdf(file);
    ASSERT_GT(pdf.count(), 5);
    QStringList lines;
    for (int page = 0; page < pdf.count(); ++page)
        for (const QString& line : pdf.pdf->getAllText(page).text().split(
                 QRegularExpression(QStringLiteral("[\r\n]+")), Qt::SkipEmptyParts))
            lines << line.trimmed();
    const qsizetype notes = lines.indexOf(expected.first());
    ASSERT_GE(notes, 0);
    lines = lines.mid(notes, expected.size());
    EXPECT_EQ(lines, expected);
}

class ReportBothWaysTest : public GroupsTest {};

// The command line writes the page the window's Share writes in the window as it first opens:
// the same pages, the pictures the same size.
TEST_F(ReportBothWaysTest, TheCommandLineWritesTheWindowsPage) {
    addCoin("Dime", 1999, 2, 1.25f, "USA", "D")->setFrontImage(coinPicture(Qt::red));
    addCoin("Quarter", 1964, 3, 2.0f, "USA", "S")->setBackImage(coinPicture(Qt::blue));
    ASSERT_TRUE(ctx().save().ok());
    window->resize(Window::kFirstSize);
    QApplication::processEvents();
    BreakdownTableViewController* b = openBreakdown(1, "USA");
    ASSERT_NE(b, nullptr);
    QApplication::processEvents();
    // The whole window but the tab bar's edges.
    EXPECT_NEAR(b->width(), Window::kFirstSize.width(), 8);
    barButton(b, "ShareButton")->click();
    PdfPages shared(readFile(dir() + "/Documents/CoinListByCountry.pdf"));

    const QString file = dir() + "/script.pdf";
    const ProgramRun r = runProgram(dir(), {"--report", "country", "USA", "--pdf", file});
    ASSERT_EQ(r.exitCode, 0) << r.errors.toStdString();
    PdfPages written(file);

    ASSERT_EQ(written.count(), shared.count());
    EXPECT_EQ(written.texts, shared.texts);
    const QImage scripted = written.pdf->render(0, (written.size(0) * 2).toSize());
    const QImage fromWindow = shared.pdf->render(0, (shared.size(0) * 2).toSize());
    EXPECT_NEAR(redWidth(scripted) / 2.0, Window::kFirstSize.width() / 6.0, 2);
    EXPECT_NEAR(redWidth(scripted), redWidth(fromWindow), 4); // within 2 points
}
