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

#include <QtConcurrent/QtConcurrentRun>
#include <deque>
#include <functional>
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

// A batch's pictures coded on one thread and handed over together: one wake of the writer per
// batch rather than one per picture.
QList<Encoded> codeAll(const QList<QByteArray>& pictures) {
    QList<Encoded> coded;
    coded.reserve(pictures.size());
    for (const QByteArray& picture : pictures)
        coded.append(reencode(picture));
    return coded;
}

// Re-encoding pictures dominates the export. They are coded on every core in small batches,
// several batches ahead of the one being written, so that the cores never wait for the writer
// and what is held besides the file stays the same whatever the collection's size. Identical
// pictures give identical text: each is coded once while it is in use, and recent ones are
// remembered.
class PictureCoder {
public:
    static constexpr qsizetype Batch = 64; // pictures
    static constexpr qsizetype Ahead = 4;  // batches being coded at once
    static constexpr qsizetype Remembered = 1024;

    // `read` gives picture `index`, on this thread, in order.
    PictureCoder(qsizetype count, std::function<QByteArray(qsizetype)> read)
        : pictures_(count)
        , read_(std::move(read)) {
        while (ahead_.size() < Ahead && nextStart_ < pictures_.size())
            startBatch();
    }
    ~PictureCoder() {
        for (Pending& batch : ahead_)
            batch.future.waitForFinished();
    }
    PictureCoder(const PictureCoder&) = delete;
    PictureCoder& operator=(const PictureCoder&) = delete;

    // The text of picture `index`, nothing for no picture; asked in order.
    const Encoded* at(qsizetype index) {
        while (index >= doneUpTo_)
            finishBatch();
        const QByteArray& picture = pictures_[index];
        return picture.isNull() ? nullptr : &known_.find(picture)->text;
    }

private:
    struct Entry {
        Encoded text;
        qsizetype lastUse = 0; // the end of the last batch that needs it
    };
    struct Pending {
        qsizetype end = 0;
        QList<QByteArray> distinct; // the batch's pictures not coded before it
        QFuture<QList<Encoded>> future;
        bool here = false;
    };

    void startBatch() {
        Pending batch;
        batch.end = std::min(nextStart_ + Batch, pictures_.size());
        for (qsizetype i = nextStart_; i < batch.end; ++i) {
            // Read while the batches before are coded, and let go once written.
            pictures_[i] = read_(i);
            if (i >= (Ahead + 1) * Batch)
                pictures_[i - Ahead * Batch - Batch] = QByteArray();
            const QByteArray& p = pictures_[i];
            if (p.isNull())
                continue;
            auto found = known_.find(p);
            if (found == known_.end()) {
                known_.insert(p, Entry{std::nullopt, batch.end});
                batch.distinct.append(p);
            } else {
                found->lastUse = batch.end;
            }
        }
        // Handing one picture to another thread costs more than coding it here.
        batch.here = batch.distinct.size() <= 1;
        if (!batch.here)
            batch.future = QtConcurrent::run(codeAll, batch.distinct);
        nextStart_ = batch.end;
        ahead_.push_back(std::move(batch));
    }

    void finishBatch() {
        Pending batch = std::move(ahead_.front());
        ahead_.pop_front();
        const QList<Encoded> done = batch.here ? QList<Encoded>() : batch.future.result();
        for (qsizetype i = 0; i < batch.distinct.size(); ++i)
            known_.find(batch.distinct[i])->text =
                batch.here ? reencode(batch.distinct[i]) : done[i];
        // Forget what no batch from here on needs.
        if (known_.size() > Remembered)
            known_.removeIf(
                [this](const auto& entry) { return entry.value().lastUse <= doneUpTo_; });
        doneUpTo_ = batch.end;
        if (nextStart_ < pictures_.size())
            startBatch();
    }

    QList<QByteArray> pictures_;
    std::function<QByteArray(qsizetype)> read_;
    qsizetype doneUpTo_ = 0, nextStart_ = 0;
    std::deque<Pending> ahead_;
    QHash<QByteArray, Entry> known_;
};

// Stopped here, on the calling thread, so that the message can name the coin to fix.
void appendPicture(QByteArray& out, PictureCoder& coder, qsizetype index, const Coins& coin,
                   const char* face) {
    const Encoded* coded = coder.at(index);
    if (!coded)
        return;
    const Encoded& text = *coded;
    if (!text)
        fatalError(QStringLiteral("A stored picture cannot be read: the %1 picture of %2 "
                                  "cannot be decoded")
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
    // Picture bytes are read here, on the store's thread, a few batches ahead of the writing;
    // only the coding runs elsewhere. A read that fails is noticed before its coin is written.
    ManagedObjectContext* context =
        coins.isEmpty() ? nullptr : coins.first()->managedObjectContext();
    if (context)
        context->takeReadError(); // an older one is not ours
    std::optional<Error> readFailure;
    PictureCoder coder(coins.size() * 2, [&](qsizetype index) {
        Coins& coin = *coins[index / 2];
        QByteArray picture = index % 2 ? coin.backImage() : coin.frontImage();
        if (context && !readFailure)
            readFailure = context->takeReadError();
        // The coder holds the bytes until they are written; the coins need not as well.
        if (index % 2)
            coin.releaseData();
        return picture;
    });

    QByteArray out;
    out.reserve(qsizetype(coins.size()) * (400 + 2 * 4000) + 16);
    out += Marker;
    out += '\n';
    const int total = int(coins.size());
    for (int i = 0; i < total; ++i) {
        if (readFailure) {
            Console::print(QStringLiteral("Could not fetch. %1").arg(readFailure->description()));
            return *readFailure;
        }
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

qint64 recodePictures(const QList<QByteArray>& pictures) {
    PictureCoder coder(pictures.size(), [&](qsizetype i) { return pictures[i]; });
    qint64 bytes = 0;
    for (qsizetype i = 0; i < pictures.size(); ++i)
        if (const Encoded* text = coder.at(i); text && *text)
            bytes += (*text)->size();
    return bytes;
}

} // namespace Exchange
