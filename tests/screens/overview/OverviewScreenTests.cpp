#include "../ScreenFixture.h"
#include "PdfPages.h"
#include "platform/PdfViewer.h"
#include "screens/exchange/ImportExportViewController.h"
#include "screens/overview/OverviewViewController.h"

#include <QLabel>
#include <QPdfDocument>
#include <QRegularExpression>
#include <QScrollBar>
#include <QWheelEvent>

static void loadOverviewResource() {
    Q_INIT_RESOURCE(overview);
}

namespace {
// The headings of the guide's source, in order, the title first.
QStringList sourceHeadings() {
    const QByteArray source =
        readFile(QStringLiteral(PELVANE_SOURCE_DIR "/docs/overview/overview.md"));
    QStringList headings;
    const QRegularExpression heading(QStringLiteral("^#+ +(.+)$"),
                                     QRegularExpression::MultilineOption);
    for (auto it = heading.globalMatch(QString::fromUtf8(source)); it.hasNext();)
        headings.append(it.next().captured(1).trimmed());
    return headings;
}

void wheel(PdfViewer* viewer, int notches, Qt::KeyboardModifiers modifiers) {
    const QPointF at(viewer->viewport()->width() / 2.0, viewer->viewport()->height() / 2.0);
    QWheelEvent event(at, viewer->viewport()->mapToGlobal(at), QPoint(), QPoint(0, 120 * notches),
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(viewer->viewport(), &event);
}
} // namespace

class OverviewTest : public ScreenTest {
protected:
    OverviewViewController* open() {
        menu->HandleButtonClick();
        EXPECT_TRUE(menu->PelvaneOverviewButton->isEnabled());
        QTest::mouseClick(menu->PelvaneOverviewButton, Qt::LeftButton);
        return topAs<OverviewViewController>();
    }
};

TEST_F(OverviewTest, OpensFromTheMenuWithTheGuideFittedToTheWidth) {
    // The entries the opened menu shows.
    menu->HandleButtonClick();
    QStringList menuEntries;
    for (QPushButton* entry : menu->MainMenuButton)
        if (entry->isVisibleTo(menu))
            menuEntries << entry->text().replace("&&", "&");
    menu->HandleButtonClick();
    auto* screen = open();
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(screen->title(), "Pelvane Overview");
    PdfViewer* viewer = screen->pdfView;
    QPdfDocument* pdf = viewer->document();
    ASSERT_EQ(pdf->status(), QPdfDocument::Status::Ready);
    EXPECT_TRUE(pdf->getAllText(0).text().simplified().startsWith(sourceHeadings().value(0)));
    // The guide names every entry of the menu and every button of the Import / Export screen
    // as the program labels them, and says what a backup keeps that an export does not.
    QString guide;
    for (int page = 0; page < pdf->pageCount(); ++page)
        guide += pdf->getAllText(page).text().simplified() + QLatin1Char(' ');
    EXPECT_EQ(menuEntries.size(), 9);
    for (const QString& entry : menuEntries)
        EXPECT_TRUE(guide.contains(entry)) << entry.toStdString();
    ImportExportViewController exchange;
    const QList<QPushButton*> buttons = exchange.findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 4);
    for (QPushButton* button : buttons)
        EXPECT_TRUE(guide.contains(button->text())) << button->text().toStdString();
    for (const char* fact : {"leaves out the back pictures", "every picture and list included",
                             "kept first as a snapshot", "--backup FILE", "--restore FILE"})
        EXPECT_TRUE(guide.contains(QLatin1String(fact))) << fact;
    // What surprises people is told where the guide describes those screens, each with what to
    // do: the list, the coin forms, printing and the folders.
    const auto section = [&guide](const char* heading, const char* next) {
        const qsizetype from = guide.indexOf(QLatin1String(heading));
        return guide.mid(from, guide.indexOf(QLatin1String(next), from) - from);
    };
    const QString list = section("The coin list", "Adding and editing a coin");
    for (const char* fact :
         {"choose the sort first", "comes back into view when the search is cleared",
          "choose the sort again", "may not pass 32,767", "Arithmetic overflow",
          "quantity 1 and the value of the lot"})
        EXPECT_TRUE(list.contains(QLatin1String(fact))) << fact;
    const QString forms = section("Adding and editing a coin", "Grouping and reports");
    for (const char* fact :
         {"notes of a new coin are not kept", "Discard changes?", "Keep Editing", "Discard",
          "without saving and without asking", "first coin of that denomination and year",
          "Save the form first", "record number 0", "IDHasBeenFixedFlag=true",
          "a copy of it is kept in your Pictures folder"})
        EXPECT_TRUE(forms.contains(QLatin1String(fact))) << fact;
    EXPECT_TRUE(section("Grouping and reports", "Reference lists")
                    .contains("empty at first: Create File lays out"));
    EXPECT_TRUE(guide.contains("the menu is closed again each time you come back to it"));
    EXPECT_FALSE(guide.contains("there is nothing to save on leaving"));
    EXPECT_EQ(viewer->pageMode(), QPdfView::PageMode::MultiPage);
    EXPECT_EQ(screen->PageLabel->text(), QStringLiteral("1 of %1").arg(pdf->pageCount()));

    // The page fills the width of the view, at phone and at desktop width.
    for (const QSize size : {QSize(390, 844), QSize(1280, 800)}) {
        window->resize(size);
        QApplication::processEvents();
        EXPECT_TRUE(viewer->autoScales());
        const QMargins margins = viewer->documentMargins();
        EXPECT_NEAR(viewer->scale() * pdf->pagePointSize(0).width(),
                    viewer->viewport()->width() - margins.left() - margins.right(), 1.0);
        EXPECT_EQ(viewer->horizontalScrollBar()->maximum(), 0);
        EXPECT_GT(viewer->verticalScrollBar()->maximum(), 0);
    }

    // Scrolling to the end brings the last page and its number into view.
    viewer->verticalScrollBar()->setValue(viewer->verticalScrollBar()->maximum());
    QApplication::processEvents();
    EXPECT_EQ(viewer->currentPage(), pdf->pageCount() - 1);
    EXPECT_EQ(screen->PageLabel->text(), QStringLiteral("%1 of %1").arg(pdf->pageCount()));
}

TEST_F(OverviewTest, CtrlWheelZoomsWithinLimitsAndZoomingBackFitsTheWidthAgain) {
    auto* screen = open();
    ASSERT_NE(screen, nullptr);
    PdfViewer* viewer = screen->pdfView;
    QApplication::processEvents();
    const qreal fitted = viewer->scale();

    // A plain wheel scrolls and leaves the zoom alone.
    wheel(viewer, -2, Qt::NoModifier);
    EXPECT_GT(viewer->verticalScrollBar()->value(), 0);
    EXPECT_DOUBLE_EQ(viewer->scale(), fitted);

    wheel(viewer, 1, Qt::ControlModifier);
    EXPECT_FALSE(viewer->autoScales());
    EXPECT_NEAR(viewer->scale(), fitted * 1.15, fitted * 0.01);
    EXPECT_GT(viewer->horizontalScrollBar()->maximum(), 0); // wider than the view now
    wheel(viewer, 1, Qt::ControlModifier);
    EXPECT_NEAR(viewer->scale(), fitted * 1.15 * 1.15, fitted * 0.01);
    // A zoomed page keeps its size when the window changes.
    window->resize(500, 844);
    QApplication::processEvents();
    EXPECT_NEAR(viewer->scale(), fitted * 1.15 * 1.15, fitted * 0.01);
    window->resize(390, 844);
    QApplication::processEvents();

    wheel(viewer, -2, Qt::ControlModifier);
    EXPECT_TRUE(viewer->autoScales());
    EXPECT_DOUBLE_EQ(viewer->scale(), fitted);

    // A pinch's scale goes the same way, bounded at half and six times the fitted width.
    viewer->zoomBy(100);
    EXPECT_NEAR(viewer->scale(), 6 * fitted, 1e-9);
    viewer->zoomBy(0.001);
    EXPECT_NEAR(viewer->scale(), 0.5 * fitted, 1e-9);
    EXPECT_FALSE(viewer->autoScales());
}

TEST(OverviewDocument, BuiltGuideIsA4PagesWithEveryHeadingInOrderNoneEndingAPage) {
    loadOverviewResource();
    const QByteArray bytes = readFile(OverviewViewController::DocumentPath);
    // "Arial" is set in Liberation Sans, embedded.
    EXPECT_TRUE(bytes.contains("LiberationSans"));
    EXPECT_TRUE(bytes.contains("/FontFile2"));

    const PdfPages pdf(OverviewViewController::DocumentPath);
    ASSERT_GE(pdf.count(), 5);
    const QStringList headings = sourceHeadings();
    ASSERT_GE(headings.size(), 8);
    for (int page = 0; page < pdf.count(); ++page) {
        EXPECT_TRUE(pdf.isA4(page)) << page;
        EXPECT_FALSE(pdf.texts[page].isEmpty()) << page;
        for (const QString& heading : headings)
            EXPECT_FALSE(pdf.texts[page].endsWith(heading))
                << heading.toStdString() << " ends page " << page;
    }
    EXPECT_TRUE(pdf.inOrder(headings));
}
