// Lays the overview guide out on A4 pages:  overview_make SOURCE.md OUT.pdf
// The source is Markdown; its pictures are PNG files named relative to it. Every picture must
// load, or nothing is written, so a broken guide stops the build rather than shipping.
#include "platform/graphics/PageRenderer.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextList>

#include <cstdio>

namespace {

// A4 with margins of about two centimetres; a little more at the foot.
const QRectF kPaper = PageRenderer::a4();
const QRectF kPrintable = kPaper.adjusted(56, 52, -56, -62);
const QColor kHeadingColour(0x1d, 0x4e, 0x5c);
const QColor kCaptionColour(0x55, 0x5b, 0x61);
constexpr qreal kBodySize = 10.5;
// Pictures stand side by side in one paragraph; none is taller than this.
constexpr qreal kPictureHeight = 340;
constexpr qreal kPictureGap = 14;

struct HeadingStyle {
    qreal size;
    qreal above;
    qreal below;
};

HeadingStyle headingStyle(int level) {
    switch (level) {
    case 1:
        return {24, 0, 10};
    case 2:
        return {16, 16, 5};
    default:
        return {12, 10, 3};
    }
}

bool isPictureBlock(const QTextBlock& block) {
    bool picture = false;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.charFormat().isImageFormat())
            picture = true;
        else if (!fragment.text().trimmed().isEmpty())
            return false;
    }
    return picture;
}

// A paragraph in italics alone right after a picture is its caption.
bool isCaptionBlock(const QTextBlock& block) {
    if (!block.previous().isValid() || !isPictureBlock(block.previous()))
        return false;
    for (auto it = block.begin(); !it.atEnd(); ++it)
        if (!it.fragment().charFormat().fontItalic())
            return false;
    return true;
}

void restyleFragments(QTextDocument& document, const QTextBlock& block,
                      const std::function<void(QTextCharFormat&)>& change) {
    QList<QTextFragment> fragments;
    for (auto it = block.begin(); !it.atEnd(); ++it)
        fragments.append(it.fragment());
    for (const QTextFragment& fragment : fragments) {
        QTextCursor cursor(&document);
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        QTextCharFormat format = fragment.charFormat();
        change(format);
        cursor.setCharFormat(format);
    }
}

void styleText(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        QTextBlockFormat format = block.blockFormat();
        if (const int level = format.headingLevel(); level > 0) {
            const HeadingStyle style = headingStyle(level);
            format.setTopMargin(style.above);
            format.setBottomMargin(style.below);
            cursor.setBlockFormat(format);
            restyleFragments(document, block, [&](QTextCharFormat& f) {
                f.clearProperty(QTextFormat::FontSizeAdjustment);
                f.setFontPointSize(style.size);
                f.setFontWeight(QFont::Bold);
                f.setForeground(kHeadingColour);
            });
            continue;
        }
        // Commands and paths in code spans: the monospaced face of the same family, a little
        // smaller.
        restyleFragments(document, block, [](QTextCharFormat& f) {
            if (!f.fontFixedPitch() || f.isImageFormat())
                return;
            f.setFontFamilies({QStringLiteral("Liberation Mono")});
            f.setFontPointSize(kBodySize - 1);
        });
        format.setLineHeight(128, QTextBlockFormat::ProportionalHeight);
        if (!block.textList())
            format.setBottomMargin(7);
        if (isPictureBlock(block)) {
            format.setAlignment(Qt::AlignHCenter);
            format.setTopMargin(4);
            format.setLineHeight(100, QTextBlockFormat::ProportionalHeight);
        } else if (isCaptionBlock(block)) {
            format.setAlignment(Qt::AlignHCenter);
            format.setBottomMargin(12);
            restyleFragments(document, block, [](QTextCharFormat& f) {
                f.setFontPointSize(kBodySize - 1);
                f.setForeground(kCaptionColour);
            });
        }
        cursor.setBlockFormat(format);
    }
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (QTextList* list = block.textList()) {
            QTextListFormat format = list->format();
            format.setIndent(1);
            list->setFormat(format);
            QTextBlockFormat item = block.blockFormat();
            item.setBottomMargin(3);
            QTextCursor(block).setBlockFormat(item);
        }
}

// A thin grey line round a screen picture, so that its pale background keeps to its edge.
QImage framed(const QImage& picture) {
    QImage copy = picture.convertToFormat(QImage::Format_RGB32);
    QPainter painter(&copy);
    painter.setPen(QColor(0xa0, 0xa4, 0xa8));
    painter.drawRect(copy.rect().adjusted(0, 0, -1, -1));
    return copy;
}

// Loads every picture the source names and sizes it so that the pictures of one paragraph
// stand side by side within the text width. False (with a message) when one is missing, or
// when the source names more pictures than the document holds: Markdown drops a picture
// without a description.
bool placePictures(QTextDocument& document, const QDir& sourceDir, const QString& markdown) {
    const qreal textWidth = kPrintable.width();
    const QRegularExpression named(QStringLiteral(R"(!\[[^\]]*\]\([^)]+\))"));
    int unplaced = 0;
    for (auto it = named.globalMatch(markdown); it.hasNext(); it.next())
        ++unplaced;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QList<QTextFragment> pictures;
        for (auto it = block.begin(); !it.atEnd(); ++it)
            if (it.fragment().charFormat().isImageFormat())
                pictures.append(it.fragment());
        if (pictures.isEmpty())
            continue;
        const qreal share = (textWidth - kPictureGap * (pictures.size() - 1)) / pictures.size();
        for (const QTextFragment& fragment : pictures) {
            QTextImageFormat format = fragment.charFormat().toImageFormat();
            const QString name = format.name();
            const QImage picture(sourceDir.filePath(name));
            if (picture.isNull()) {
                std::fprintf(stderr, "overview: picture %s cannot be read\n", qPrintable(name));
                return false;
            }
            document.addResource(QTextDocument::ImageResource, QUrl(name), framed(picture));
            const qreal aspect = qreal(picture.height()) / picture.width();
            const qreal width = qMin(share, kPictureHeight / aspect);
            format.setWidth(width);
            format.setHeight(width * aspect);
            QTextCursor cursor(&document);
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
            --unplaced;
        }
    }
    if (unplaced != 0) {
        std::fprintf(stderr, "overview: a picture has no description: ![description](file.png)\n");
        return false;
    }
    return true;
}

int pageOf(qreal y) {
    return int(y / kPrintable.height());
}

qreal lineTop(const QTextBlock& block, int line) {
    return block.layout()->position().y() + block.layout()->lineAt(line).y();
}

// Headings and pictures go with what follows them; a list's last item does not stand alone.
bool keepsWithNext(const QTextBlock& block) {
    if (block.blockFormat().headingLevel() > 0 || isPictureBlock(block))
        return true;
    const QTextList* list = block.textList();
    return list && list->count() > 2 && block.next().textList() == list &&
           list->itemNumber(block.next()) == list->count() - 1;
}

// The first block that ends a page alone: one that keeps with the next whose next block starts
// on the next page (or keeps fewer than two of its lines with it), or a section heading in the
// last fifth of a page.
QTextBlock firstStranded(QTextDocument& document) {
    document.documentLayout()->documentSize(); // lays everything out
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!keepsWithNext(block))
            continue;
        const QTextBlock next = block.next();
        const QTextLayout* layout = block.layout();
        if (!next.isValid() || layout->lineCount() == 0 || next.layout()->lineCount() == 0)
            continue;
        const int page = pageOf(lineTop(block, 0));
        if (page == 0 && lineTop(block, 0) < 1)
            continue;
        const int keep = qMin(2, next.layout()->lineCount()) - 1;
        if (pageOf(lineTop(next, keep)) != page)
            return block;
        const qreal onPage = lineTop(block, 0) - page * kPrintable.height();
        if (block.blockFormat().headingLevel() == 2 && onPage > 0.8 * kPrintable.height())
            return block;
    }
    return {};
}

void keepWithNext(QTextDocument& document) {
    for (int round = 0; round < 200; ++round) {
        const QTextBlock stranded = firstStranded(document);
        if (!stranded.isValid())
            return;
        QTextBlockFormat format = stranded.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(stranded).setBlockFormat(format);
    }
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: overview_make SOURCE.md OUT.pdf\n");
        return 2;
    }
    const QString sourcePath = QString::fromLocal8Bit(argv[1]);
    QFile source(sourcePath);
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "overview: %s: %s\n", argv[1], qPrintable(source.errorString()));
        return 1;
    }
    QTextDocument document;
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(kBodySize);
    document.setDefaultFont(font);
    document.setIndentWidth(16);
    const QString markdown = QString::fromUtf8(source.readAll());
    document.setMarkdown(markdown);
    if (!placePictures(document, QFileInfo(sourcePath).dir(), markdown))
        return 1;
    styleText(document);

    PageRenderer renderer(document, kPaper, kPrintable);
    keepWithNext(document);
    const QByteArray pdf = renderer.pdf();

    QSaveFile out(QString::fromLocal8Bit(argv[2]));
    if (!out.open(QIODevice::WriteOnly) || out.write(pdf) != pdf.size() || !out.commit()) {
        std::fprintf(stderr, "overview: %s: %s\n", argv[2], qPrintable(out.errorString()));
        return 1;
    }
    return 0;
}
