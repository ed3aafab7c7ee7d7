#include "PdfPages.h"
#include "TestSupport.h"
#include "platform/graphics/PageRenderer.h"

#include <QImage>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>

TEST(PageRenderer, LaysTextOutOnA4PagesAndDrawsEveryOne) {
    QTextDocument document;
    QTextCursor cursor(&document);
    QImage picture(400, 400, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    document.addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("picture")), picture);
    for (int line = 0; line < 200; ++line) {
        cursor.insertText(QStringLiteral("Line %1\n").arg(line));
        if (line % 40 == 0) {
            QTextImageFormat image;
            image.setName(QStringLiteral("picture"));
            image.setWidth(99.2);
            image.setHeight(99.2);
            cursor.insertImage(image);
            cursor.insertText(QStringLiteral("\n"));
        }
    }
    PageRenderer renderer(document, PageRenderer::a4(), PageRenderer::a4());
    const int pages = renderer.numberOfPages();
    ASSERT_GT(pages, 2);

    int told = 0;
    QByteArray bytes = renderer.pdf([&](int done, int all) {
        EXPECT_EQ(all, pages);
        EXPECT_EQ(done, ++told);
    });
    EXPECT_EQ(told, pages);
    PdfPages pdf(bytes);
    ASSERT_EQ(pdf.count(), pages);
    EXPECT_TRUE(pdf.isA4(0));
    // Every line once, in order, none lost or cut at a page break.
    QStringList lines;
    for (int line = 0; line < 200; ++line)
        lines << QStringLiteral("Line %1 ").arg(line);
    const QString all = pdf.all() + QLatin1Char(' ');
    EXPECT_TRUE(PdfPages::inOrder(all, lines));
    EXPECT_EQ(all.count(QStringLiteral("Line 7 ")), 1);
    // The pictures are drawn: the first page has green ink.
    const QImage first = pdf.pdf->render(0, QSize(298, 421));
    int green = 0;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x)
            if (const QColor c = first.pixelColor(x, y); c.green() > 100 && c.red() < 40)
                ++green;
    EXPECT_GT(green, 100);
}

TEST(PageRenderer, PrintableRectangleIsTheMarginAndPagesScaleToTheirBounds) {
    QTextDocument document;
    document.setPlainText(QStringLiteral("Margin"));
    const QRectF paper = PageRenderer::a4();
    PageRenderer renderer(document, paper, paper.adjusted(72, 72, -72, -72));
    ASSERT_EQ(renderer.numberOfPages(), 1);
    QImage page(298, 421, QImage::Format_RGB32); // half size
    page.fill(Qt::white);
    QPainter painter(&page);
    renderer.drawPage(painter, 0, QRectF(0, 0, 297.6, 420.9));
    painter.end();
    QRect ink;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            if (page.pixelColor(x, y) != QColor(Qt::white))
                ink |= QRect(x, y, 1, 1);
    ASSERT_FALSE(ink.isEmpty());
    // One inch of margin on paper is half an inch (36 px here) on the half-size page.
    EXPECT_GE(ink.left(), 35);
    EXPECT_GE(ink.top(), 35);
    EXPECT_LT(ink.top(), 60);
}

namespace {
QByteArray picture(const QColor& colour, const char* format, bool progressive = false) {
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(colour);
    return encodedImage(image, format, progressive);
}

// The pixels of `image` near `colour`.
int inkOf(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            count += std::abs(c.red() - colour.red()) + std::abs(c.green() - colour.green()) +
                         std::abs(c.blue() - colour.blue()) <
                     40;
        }
    return count;
}
} // namespace

// A plain JPEG goes into the PDF as its own bytes, once however often it is drawn; other
// pictures as the engine writes them; and every object is where the cross-reference table
// says, after the swap made them longer.
TEST(PageRenderer, PlainJpegsGoIntoThePdfAsTheyAre) {
    const QByteArray red = picture(Qt::red, "jpeg");
    const QByteArray blue = picture(Qt::blue, "jpeg", true); // progressive: not plain
    const QByteArray green = picture(Qt::green, "png");
    QTextDocument document;
    QTextCursor cursor(&document);
    const QByteArray* pictures[] = {&red, &blue, &green};
    for (int i = 0; i < 3; ++i)
        document.addResource(QTextDocument::ImageResource, QUrl(QString::number(i)), *pictures[i]);
    for (int line = 0; line < 150; ++line) {
        cursor.insertText(QStringLiteral("Line %1\n").arg(line));
        if (line % 25 == 0)
            for (const int i : {0, line / 25 % 3}) {
                QTextImageFormat image;
                image.setName(QString::number(i));
                image.setWidth(100);
                image.setHeight(100);
                cursor.insertImage(image);
            }
        if (line % 25 == 0)
            cursor.insertText(QStringLiteral("\n"));
    }
    PageRenderer renderer(document, PageRenderer::a4(), PageRenderer::a4());
    ASSERT_GT(renderer.numberOfPages(), 2);
    const QByteArray bytes = renderer.pdf();
    EXPECT_EQ(bytes.count(red), 1);
    EXPECT_EQ(bytes.count(blue), 0);
    EXPECT_TRUE(PdfPages::crossReferencesHold(bytes));

    PdfPages pdf(bytes);
    ASSERT_EQ(pdf.count(), renderer.numberOfPages());
    EXPECT_TRUE(PdfPages::inOrder(pdf.all(), {"Line 0 ", "Line 75 ", "Line 149"}));
    int reds = 0, blues = 0, greens = 0;
    for (int page = 0; page < pdf.count(); ++page) {
        // One pixel a point: each picture is 75 x 75 (100 pixels of 1/96 inch).
        const QImage image = pdf.pdf->render(page, QSize(595, 842));
        reds += inkOf(image, Qt::red);
        blues += inkOf(image, Qt::blue);
        greens += inkOf(image, Qt::green);
    }
    EXPECT_NEAR(reds, 8 * 75 * 75, 8 * 2 * 76); // twice on the first line
    EXPECT_NEAR(blues, 2 * 75 * 75, 2 * 2 * 76);
    EXPECT_NEAR(greens, 2 * 75 * 75, 2 * 2 * 76);
}
