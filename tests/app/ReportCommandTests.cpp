#include "PdfPages.h"
#include "Program.h"
#include "TestSupport.h"

#include <QFile>

// Scripts write the report of a group with no display at all.
TEST_F(PelvaneTest, TheReportRunsFromTheCommandLine) {
    QString errors, output;
    auto run = [&](const QStringList& arguments) {
        const ProgramRun r = runProgram(dir() + "/store", arguments);
        errors = r.errors;
        output = r.output;
        return r.exitCode;
    };
    ASSERT_EQ(run({"--import", PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv"}), 0);

    const QString file = dir() + "/wheat.pdf";
    EXPECT_EQ(run({"--report", "denomination", "1 Cent Lincoln Wheat", "--pdf", file}), 0);
    EXPECT_EQ(output.trimmed(), "wrote PDF file with multiple pages to: " + file);
    PdfPages wheat(file);
    ASSERT_EQ(wheat.count(), 2);
    EXPECT_TRUE(wheat.isA4(0));
    EXPECT_TRUE(wheat.all().startsWith("Coins Filtered by Denomination: 1 Cent Lincoln Wheat"));
    EXPECT_TRUE(wheat.inOrder({"Coin Year: 1909", "Coin Year: 1914"})) << wheat.all().toStdString();

    // The documents folder inside the data folder unless told otherwise.
    EXPECT_EQ(run({"--report", "year", "1909"}), 0);
    PdfPages year(dir() + "/store/Documents/CoinListByYear.pdf");
    EXPECT_TRUE(year.all().startsWith("Coins Filtered by Year: 1909 Coin Denomination: "));
    EXPECT_EQ(run({"--report", "country", "Canada"}), 0);
    EXPECT_GT(PdfPages(dir() + "/store/Documents/CoinListByCountry.pdf").count(), 0);

    EXPECT_EQ(run({"--report", "country", "Atlantis", "--pdf", dir() + "/none.pdf"}), 1);
    EXPECT_FALSE(errors.isEmpty());
    EXPECT_FALSE(QFile::exists(dir() + "/none.pdf"));
    EXPECT_EQ(run({"--report", "colour", "red"}), 2);
    EXPECT_TRUE(errors.startsWith("usage: pelvane"));
    EXPECT_EQ(run({"--report", "year", "40000"}), 2);
    EXPECT_EQ(run({"--report", "year"}), 2);

    // A file that cannot be written (its folder is a file): exit 1 and the reason. That an
    // earlier file stays whole is the screen's test, through the same writer.
    EXPECT_EQ(run({"--report", "year", "1909", "--pdf", file + "/report.pdf"}), 1);
    EXPECT_TRUE(output.startsWith("Could not create PDF file: ")) << output.toStdString();
    EXPECT_EQ(PdfPages(file).texts, wheat.texts);
}
