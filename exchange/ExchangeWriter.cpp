#include "exchange/ExchangeWriter.h"
#include "model/PrintedFetch.h"

#include "model/ManagedObjectContext.h"
#include "model/Numbers.h"
#include "model/Records.h"
#include "platform/core/Console.h"
#include "platform/core/Fatal.h"
#include "platform/graphics/ImageCoding.h"

#include <QFuture>
#include <QHash>
#include <QSet>

#include <QtConcurrent/QtConcurrentMap>
#include <optional>

namespace Exchange {

namespace {

using Encoded = std::optional<QByteArray>;

// A picture as the file writes it: JPEG at quality 0.6 in base64; nothing for bytes that are
// no picture, "" when the encoder gives nothing.
Encoded reencode(const QByteArray& bytes) {
    const QByteArray encoded = ImageCoding::reencodeJpeg(bytes, 0.6);
    if (encoded.isEmpty() && ImageCoding::decode(bytes).isNull())
        return std::nullopt;
    return ImageCoding::base64(encoded);
}

// Re-encoding pictures dominates the export. They are coded on every core a window of coins
// at a time, the next window while this one is written, so that what is held besides the file
// stays the same whatever the collection's size. Identical pictures give identical text: each
// is coded once within a window, and recent ones are remembered.
class PictureCoder {
public:
    static constexpr qsizetype Window = 256; // pictures

    explicit PictureCoder(const QList<QByteArray>& pictures)
        : pictures_(pictures) {
        start(0);
    }
    ~PictureCoder() { next_.waitForFinished(); }
    PictureCoder(const PictureCoder&) = delete;
    PictureCoder& operator=(const PictureCoder&) = delete;

    bool isNull(qsizetype index) const { return pictures_[index].isNull(); }
    // The text of picture `index`; asked in order.
    const Encoded& at(qsizetype index) {
        while (index >= windowStart_ + Window || windowStart_ < 0)
            advance();
        const QByteArray& picture = pictures_[index];
        const auto found = recent_.constFind(picture);
        if (found != recent_.cend())
            return *found;
        return current_[picture];
    }

private:
    void start(qsizetype from) {
        nextStart_ = from;
        nextDistinct_.clear();
        QSet<QByteArray> seen;
        for (qsizetype i = from; i < std::min(from + Window, pictures_.size()); ++i) {
            const QByteArray& p = pictures_[i];
            if (!p.isNull() && !recent_.contains(p) && !seen.contains(p)) {
                seen.insert(p);
                nextDistinct_.append(p);
            }
        }
        // Handing one picture to another thread costs more than coding it here.
        if (nextDistinct_.size() <= 1) {
            nextHere_ = true;
        } else {
            nextHere_ = false;
            next_ = QtConcurrent::mapped(nextDistinct_, reencode);
        }
    }
    void advance() {
        QList<Encoded> done;
        if (nextHere_)
            for (const QByteArray& p : std::as_const(nextDistinct_))
                done.append(reencode(p));
        else
            done = next_.results();
        // Those of the window written last are the likeliest to come again.
        if (recent_.size() > 4 * Window)
            recent_.clear();
        for (auto it = current_.cbegin(); it != current_.cend(); ++it)
            recent_.insert(it.key(), it.value());
        current_.clear();
        for (qsizetype i = 0; i < nextDistinct_.size(); ++i)
            current_.insert(nextDistinct_[i], done[i]);
        windowStart_ = nextStart_;
        if (windowStart_ + Window < pictures_.size())
            start(windowStart_ + Window);
    }

    const QList<QByteArray>& pictures_;
    qsizetype windowStart_ = -1, nextStart_ = 0;
    QList<QByteArray> nextDistinct_;
    QFuture<Encoded> next_;
    bool nextHere_ = false;
    QHash<QByteArray, Encoded> current_, recent_;
};

// Stopped here, on the calling thread, so that the message can name the coin to fix.
void appendPicture(QByteArray& out, PictureCoder& coder, qsizetype index, const Coins& coin,
                   const char* face) {
    if (coder.isNull(index))
        return;
    const Encoded& text = coder.at(index);
    if (!text)
        fatalError(QStringLiteral("Unexpectedly found nil while unwrapping an Optional value "
                                  "(the %1 picture of %2 cannot be decoded)")
                       .arg(QLatin1String(face), coinForMessage(coin)),
                   StopSites::ExportPicture);
    out += *text;
}

void appendText(QByteArray& out, const QString& text) {
    out += text.toUtf8();
}

// A field's text: a number in its shortest exact form, a text by its attribute's rule.
QString fieldText(const Coins& coin, const CoinAttribute& field) {
    const QVariant value = coin.value(field.index);
    switch (coin.entity().attributes[std::size_t(field.index)].type) {
    case AttributeType::Int16:
        return QString::number(value.toInt());
    case AttributeType::Double:
        return Numbers::formatDouble(value.toDouble());
    case AttributeType::Float:
        return Numbers::formatFloat(value.toFloat());
    case AttributeType::Text:
    case AttributeType::Data:
        break;
    }
    QString text = value.toString();
    if (field.rule == ExchangeRule::Description || field.rule == ExchangeRule::Notes)
        text.remove(u'^');
    if (field.rule == ExchangeRule::Notes)
        text.replace(u'\n', u'~');
    return text;
}

} // namespace

QString coinForMessage(const Coins& coin) {
    return QStringLiteral("%1, %2, %3")
        .arg(coin.denomination())
        .arg(coin.year())
        .arg(coin.country());
}

Result<QList<CoinPtr>> coinsInFileOrder(ManagedObjectContext& context) {
    FetchRequest request(QStringLiteral("Coins"));
    request.sortDescriptors = {{QStringLiteral("denomination"), true},
                               {QStringLiteral("year"), true},
                               {QStringLiteral("mintMark"), true}};
    request.returnsObjectsAsFaults = false;
    return fetchOrPrint<Coins>(context, request);
}

Result<QByteArray> exchangeText(ManagedObjectContext& context, const Progress& progress) {
    const Result<QList<CoinPtr>> coins = coinsInFileOrder(context);
    if (!coins.ok())
        return coins.error();
    return exchangeText(coins.value(), progress);
}

Result<QByteArray> exchangeText(const QList<CoinPtr>& coins, const Progress& progress) {
    // Picture bytes are read here, on the store's thread; only the coding runs elsewhere.
    if (!coins.isEmpty() && coins.first()->managedObjectContext())
        coins.first()->managedObjectContext()->takeReadError(); // an older one is not ours
    QList<QByteArray> pictures;
    pictures.reserve(coins.size() * 2);
    for (const CoinPtr& c : coins) {
        pictures.append(c->frontImage());
        pictures.append(c->backImage());
    }
    if (!coins.isEmpty() && coins.first()->managedObjectContext())
        if (auto failure = coins.first()->managedObjectContext()->takeReadError()) {
            Console::print(QStringLiteral("Could not fetch. %1").arg(failure->description()));
            return *failure;
        }
    PictureCoder coder(pictures);

    QByteArray out;
    out.reserve(qsizetype(coins.size()) * (400 + 2 * 4000) + 16);
    out += Marker;
    out += '\n';
    const int total = int(coins.size());
    for (int i = 0; i < total; ++i) {
        const Coins& c = *coins[i];
        // Every field in the table's file order, separated by carets; the record number follows
        // the back picture directly, and the reader never splits it off.
        for (int p = 0; p < CoinAttributes::count; ++p) {
            const CoinAttribute& field = CoinAttributes::atFilePosition(p);
            if (field.rule == ExchangeRule::RecordNumber) {
                out += QByteArray::number(c.id());
                continue;
            }
            if (p > 0)
                out += '^';
            if (field.rule == ExchangeRule::Picture) {
                const bool front = field.index == Coins::Attr::frontImage;
                appendPicture(out, coder, 2 * i + (front ? 0 : 1), c, front ? "front" : "back");
                continue;
            }
            appendText(out, fieldText(c, field));
        }
        out += '\n';
        if (progress)
            progress(i + 1, total);
    }
    return out;
}

} // namespace Exchange
