#include "reports/CoinDocument.h"

#include "model/Numbers.h"
#include "model/Originals.h"
#include "platform/core/Console.h"
#include "platform/core/Files.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/graphics/PageRenderer.h"
#include "reports/Currency.h"

#include <QCoreApplication>
#include <QTextBlockFormat>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QtConcurrent>

namespace {
// Qt sizes inline pictures in pixels of 1/96 inch, and the pages are laid out in points.
constexpr qreal kPixelsPerPoint = 96.0 / 72.0;

QString shortest(double number) {
    return Numbers::formatFloat(float(number));
}
} // namespace

CoinDocument::OriginalOf CoinDocument::originalsIn(ManagedObjectContext& context) {
    return [&context](const QByteArray& picture) -> std::optional<PageOriginal> {
        const std::optional<Originals::Original> original = Originals::of(context, picture);
        if (!original)
            return std::nullopt;
        return PageOriginal{original->path, original->size,
                            [o = *original] { return Originals::read(o); }};
    };
}

CoinDocument::CoinDocument(qreal pictureWidth, Medium medium, OriginalOf originalOf)
    : document_(std::make_unique<QTextDocument>())
    , cursor_(document_.get())
    , pictureWidth_(pictureWidth)
    , medium_(medium)
    , originalOf_(std::move(originalOf)) {
    document_->setDefaultFont(blockFont());
    document_->setUndoRedoEnabled(false);
    black_.setForeground(Qt::black);
    black_.setFont(blockFont());
}

CoinDocument::~CoinDocument() = default;

QFont CoinDocument::blockFont() {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPointSizeF(12);
    return font;
}

void CoinDocument::appendTitle(const QString& title, int pointSize) {
    QTextCharFormat format;
    format.setForeground(Qt::black);
    format.setFontFamilies({QStringLiteral("Arial")});
    format.setFontPointSize(pointSize);
    QTextBlockFormat centred;
    centred.setAlignment(Qt::AlignHCenter);
    cursor_.setBlockFormat(centred);
    cursor_.insertText(title, format);
    format.setForeground(Qt::transparent);
    cursor_.insertText(QStringLiteral("\n\n"), format);
    QTextBlockFormat left;
    left.setAlignment(Qt::AlignLeft);
    cursor_.setBlockFormat(left);
}

void CoinDocument::append(const QString& text) {
    cursor_.insertText(text, black_);
}

void CoinDocument::appendLine(const QString& label, const QString& value) {
    cursor_.insertText(label + value + QLatin1Char('\n'), black_);
}

void CoinDocument::appendLine(const QString& label, const Coins& coin, int attribute) {
    if (coin.hasValue(attribute))
        appendLine(label, coin.value(attribute).toString());
}

void CoinDocument::measurePictures(const QList<CoinPtr>& coins) {
    QList<QByteArray> distinct;
    for (const CoinPtr& c : coins)
        for (const QByteArray& bytes : {c->frontImage(), c->backImage()})
            if (!bytes.isEmpty() && !pictures_.contains(bytes) && !measured_.contains(bytes)) {
                measured_.insert(bytes, std::nullopt);
                distinct.append(bytes);
            }
    const QList<std::optional<QSize>> sizes =
        QtConcurrent::blockingMapped(distinct, &ImageCoding::decodedSize);
    for (qsizetype i = 0; i < distinct.size(); ++i)
        measured_[distinct[i]] = sizes[i];
}

void CoinDocument::appendPicture(const QByteArray& bytes) {
    auto found = pictures_.find(bytes);
    if (found == pictures_.end()) {
        // Each distinct picture is measured once, and kept as its bytes: it is decoded only
        // as its page is drawn.
        Picture picture;
        const auto early = measured_.constFind(bytes);
        const std::optional<QSize> size =
            early != measured_.cend() ? *early : ImageCoding::decodedSize(bytes);
        if (size && size->width() > 0) {
            picture.name = QStringLiteral("coin-picture-%1").arg(pictures_.size());
            picture.height = pictureWidth_ * size->height() / size->width();
            document_->addResource(QTextDocument::ImageResource, QUrl(picture.name), bytes);
            if (originalOf_)
                if (std::optional<PageOriginal> original = originalOf_(bytes)) {
                    picture.original = QStringLiteral("coin-original-%1").arg(pictures_.size());
                    document_->addResource(QTextDocument::UserResource, QUrl(picture.original),
                                           QVariant::fromValue(std::move(*original)));
                }
        }
        found = pictures_.insert(bytes, picture);
    }
    if (found->name.isEmpty())
        return;
    QTextImageFormat image;
    image.setName(found->name);
    const qreal scale = medium_ == Medium::Paper ? kPixelsPerPoint : 1.0;
    image.setWidth(pictureWidth_ * scale);
    image.setHeight(found->height * scale);
    if (!found->original.isEmpty())
        image.setProperty(PageRenderer::OriginalProperty, found->original);
    cursor_.insertImage(image);
    append(QStringLiteral("   "));
}

void CoinDocument::appendPictures(const Coins& coin) {
    for (const QByteArray& bytes : {coin.frontImage(), coin.backImage()})
        if (!bytes.isEmpty())
            appendPicture(bytes);
}

std::unique_ptr<QTextDocument> CoinDocument::take() {
    cursor_ = QTextCursor();
    return std::move(document_);
}

QString CoinDocument::label(const char* text) {
    return QCoreApplication::translate("CoinDocument", text);
}

std::unique_ptr<QTextDocument> CoinDocument::report(const QString& title,
                                                    const QList<CoinPtr>& coins, qreal pictureWidth,
                                                    const OriginalOf& originalOf) {
    CoinDocument d(pictureWidth, Medium::Paper, originalOf);
    d.measurePictures(coins);
    d.appendTitle(title, 21);
    using A = Coins::Attr;
    for (const CoinPtr& c : coins) {
        const auto textLine = [&](const char* text, int attribute) {
            d.appendLine(label(text), *c, attribute);
        };
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Coin Denomination: "), A::denomination);
        d.appendLine(label(QT_TRANSLATE_NOOP("CoinDocument", "Coin Year: ")),
                     QString::number(c->year()));
        d.appendLine(label(QT_TRANSLATE_NOOP("CoinDocument", "Quantity: ")),
                     QString::number(c->quantity()));
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Description: "), A::descrip);
        // The one line that also leaves out an empty text.
        if (!c->country().isEmpty())
            d.appendLine(label(QT_TRANSLATE_NOOP("CoinDocument", "Country: ")), c->country());
        d.appendLine(label(QT_TRANSLATE_NOOP("CoinDocument", "Diameter: ")),
                     shortest(c->diameter()));
        d.appendLine(label(QT_TRANSLATE_NOOP("CoinDocument", "Weight: ")), shortest(c->weight()));
        d.appendLine(label(QT_TRANSLATE_NOOP("CoinDocument", "Thickness: ")),
                     shortest(c->thickness()));
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Strike Character: "), A::strikeCharacter);
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Grade #: "), A::gradeNumber);
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Edge: "), A::edge);
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Mint Mark: "), A::mintMark);
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Mint Location: "), A::mintLocation);
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Serial #: "), A::serialNumber);
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Period: "), A::period);
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Designer: "), A::designer);
        d.appendLine(label(QT_TRANSLATE_NOOP("CoinDocument", "Value: ")), shortest(c->value()));
        textLine(QT_TRANSLATE_NOOP("CoinDocument", "Notes: "), A::notes);
        d.appendPictures(*c);
        d.append(QStringLiteral("\n\n"));
    }
    return d.take();
}

QString CoinDocument::summaryLine(const Coins& coin) {
    const float total = coin.value() * float(coin.quantity());
    return label(QT_TRANSLATE_NOOP("CoinDocument", "Year: ")) + QString::number(coin.year()) +
           QStringLiteral(" - ") + label(QT_TRANSLATE_NOOP("CoinDocument", "Qty: ")) +
           QString::number(coin.quantity()) + QStringLiteral(" - ") +
           label(QT_TRANSLATE_NOOP("CoinDocument", "Total Value (Qty * Value): ")) +
           Currency::text(double(total)) + QLatin1Char('\n');
}

std::unique_ptr<QTextDocument> CoinDocument::listing(const QString& title,
                                                     const QList<CoinPtr>& coins,
                                                     const Lines& lines, qreal pictureWidth,
                                                     const OriginalOf& originalOf) {
    CoinDocument d(pictureWidth, Medium::Screen, originalOf);
    d.measurePictures(coins);
    d.appendTitle(title, 17);
    for (const CoinPtr& c : coins) {
        lines(d, *c);
        d.append(summaryLine(*c));
        d.appendPictures(*c);
        d.append(QStringLiteral("\n\n"));
    }
    return d.take();
}

QByteArray CoinDocument::pdf(QTextDocument& document,
                             const std::function<void(int, int)>& progress) {
    PageRenderer renderer(document, PageRenderer::a4(), PageRenderer::a4());
    return renderer.pdf(progress);
}

Result<void> CoinDocument::writePdfFile(const QString& path, const QByteArray& bytes) {
    const Result<void> written = Files::writeAtomically(path, bytes);
    if (written.ok())
        Console::print(QStringLiteral("wrote PDF file with multiple pages to: ") + path);
    else
        Console::print(QStringLiteral("Could not create PDF file: ") + written.error().message);
    return written;
}
