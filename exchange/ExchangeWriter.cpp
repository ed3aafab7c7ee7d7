#include "exchange/ExchangeWriter.h"
#include "model/PrintedFetch.h"

#include "model/ManagedObjectContext.h"
#include "model/Numbers.h"
#include "model/Records.h"
#include "platform/core/Console.h"
#include "platform/core/Fatal.h"
#include "platform/graphics/ImageCoding.h"

#include <QHash>

#include <QtConcurrent/QtConcurrentMap>
#include <optional>

namespace Exchange {

namespace {

// Re-encoding pictures dominates the export; identical stored pictures give identical
// output, so each distinct one is encoded once, and the distinct ones on every core. A
// picture that is no picture maps to nothing; the encoder giving nothing maps to "".
QHash<QByteArray, std::optional<QByteArray>> reencodeAll(const QList<QByteArray>& pictures) {
    QHash<QByteArray, std::optional<QByteArray>> done;
    QList<QByteArray> distinct;
    for (const QByteArray& p : pictures)
        if (!p.isNull() && !done.contains(p)) {
            done.insert(p, std::nullopt);
            distinct.append(p);
        }
    auto reencode = [](const QByteArray& bytes) -> std::optional<QByteArray> {
        const QByteArray encoded = ImageCoding::reencodeJpeg(bytes, 0.6);
        if (encoded.isEmpty() && ImageCoding::decode(bytes).isNull())
            return std::nullopt;
        return ImageCoding::base64(encoded);
    };
    // Handing one picture to another thread costs more than encoding it here.
    QList<std::optional<QByteArray>> encoded;
    if (distinct.size() <= 1)
        for (const QByteArray& p : distinct)
            encoded.append(reencode(p));
    else
        encoded = QtConcurrent::blockingMapped(distinct, reencode);
    for (qsizetype i = 0; i < distinct.size(); ++i)
        done[distinct[i]] = encoded[i];
    return done;
}

// Stopped here, on the calling thread, so that the message can name the coin to fix.
void appendPicture(QByteArray& out, const QHash<QByteArray, std::optional<QByteArray>>& encoded,
                   const QByteArray& picture, const Coins& coin, const char* face) {
    if (picture.isNull())
        return;
    const std::optional<QByteArray>& text = encoded[picture];
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
    const QHash<QByteArray, std::optional<QByteArray>> encoded = reencodeAll(pictures);

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
                appendPicture(out, encoded, pictures[2 * i + (front ? 0 : 1)], c,
                              front ? "front" : "back");
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
