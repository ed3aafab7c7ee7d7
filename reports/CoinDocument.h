#pragma once
// The styled documents made from a list of coins: the PDF report of a breakdown list and the
// print screen's listing. Both open with the same title and put each coin's pictures inline at
// one width; they differ in the title's size and in the lines of each coin.
#include "model/Records.h"
#include "platform/core/Error.h"
#include "platform/graphics/PageRenderer.h"

#include <QByteArray>
#include <QHash>
#include <QTextCharFormat>
#include <QTextCursor>

#include <functional>
#include <memory>
#include <optional>

class ManagedObjectContext;
class QTextDocument;

class CoinDocument {
public:
    // Where the document is seen: a page laid out in points (the PDF report), or a view on the
    // screen (the print listing), where a picture as wide as asked is that many pixels wide.
    enum class Medium { Paper, Screen };
    // The original a stored picture was made from, drawn in its place on paper; none for a
    // picture without one.
    using OriginalOf = std::function<std::optional<PageOriginal>(const QByteArray& picture)>;
    // The originals the context's store links, read from their files as the pages are drawn.
    static OriginalOf originalsIn(ManagedObjectContext& context);

    // `pictureWidth`: the displayed width of every picture, in the medium's unit. A picture
    // with an original (`originalOf`) takes the same room, and is drawn from its original on
    // paper.
    CoinDocument(qreal pictureWidth, Medium medium, OriginalOf originalOf = {});
    ~CoinDocument();
    CoinDocument(const CoinDocument&) = delete;
    CoinDocument& operator=(const CoinDocument&) = delete;

    // The title in black, then "\n\n" in the clear colour, all of it centred in "Arial" at
    // `pointSize`; what follows is left-aligned in the coin blocks' font.
    void appendTitle(const QString& title, int pointSize);
    // Text in black in the coin blocks' font.
    void append(const QString& text);
    // The label, the value and a line feed.
    void appendLine(const QString& label, const QString& value);
    // The same with a text attribute of the coin, left out when the coin has no such text.
    void appendLine(const QString& label, const Coins& coin, int attribute);
    // The front picture, then the back one, each followed by three spaces; a picture whose
    // bytes do not decode is left out.
    void appendPictures(const Coins& coin);
    std::unique_ptr<QTextDocument> take();

    // The PDF report: the eighteen lines of every coin.
    // A label or heading of the documents, in the reader's language ("Country: ").
    static QString label(const char* text);
    static std::unique_ptr<QTextDocument> report(const QString& title, const QList<CoinPtr>& coins,
                                                 qreal pictureWidth,
                                                 const OriginalOf& originalOf = {});
    // The print listing, shown on the screen: each coin's `lines` and its summary line.
    using Lines = std::function<void(CoinDocument&, const Coins&)>;
    static std::unique_ptr<QTextDocument> listing(const QString& title, const QList<CoinPtr>& coins,
                                                  const Lines& lines, qreal pictureWidth,
                                                  const OriginalOf& originalOf = {});
    // The summary line of a coin in the print listing.
    static QString summaryLine(const Coins& coin);

    // The document on A4 with no margin, as PDF bytes. The document may live in any thread.
    static QByteArray pdf(QTextDocument& document,
                          const std::function<void(int, int)>& progress = {});

    // Replaces the file at `path` whole, or leaves the earlier one; says which on the console.
    static Result<void> writePdfFile(const QString& path, const QByteArray& bytes);

    // The coin blocks' font: one fixed font for every screen.
    static QFont blockFont();

private:
    // Measures the coins' pictures on every core at once, ahead of appending them: a picture is
    // read through to be measured, which is most of the time a document takes to build.
    void measurePictures(const QList<CoinPtr>& coins);
    void appendPicture(const QByteArray& bytes);

    std::unique_ptr<QTextDocument> document_;
    QTextCursor cursor_;
    QTextCharFormat black_;
    qreal pictureWidth_;
    Medium medium_;
    OriginalOf originalOf_;
    // The resource name of each distinct picture, empty for bytes that do not decode, its
    // displayed height and the resource name of its original, if it has one.
    struct Picture {
        QString name;
        qreal height = 0;
        QString original;
    };
    QHash<QByteArray, Picture> pictures_;
    QHash<QByteArray, std::optional<QSize>> measured_;
};
