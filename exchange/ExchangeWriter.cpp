#include "exchange/ExchangeWriter.h"
#include "model/PrintedFetch.h"

#include "model/ManagedObjectContext.h"
#include "model/Numbers.h"
#include "model/Records.h"
#include "platform/Console.h"
#include "platform/Fatal.h"
#include "platform/ImageCoding.h"

#include <QHash>
#include <QtConcurrent/QtConcurrentMap>

namespace Exchange {

namespace {

// Re-encoding pictures dominates the export; identical stored pictures give identical
// output, so each distinct one is encoded once, and the distinct ones on every core.
QHash<QByteArray, QByteArray> reencodeAll(const QList<QByteArray>& pictures) {
    QHash<QByteArray, QByteArray> done;
    QList<QByteArray> distinct;
    for (const QByteArray& p : pictures)
        if (!p.isNull() && !done.contains(p)) {
            done.insert(p, QByteArray());
            distinct.append(p);
        }
    const QList<QByteArray> encoded =
        QtConcurrent::blockingMapped(distinct, [](const QByteArray& bytes) {
            const QByteArray encoded = ImageCoding::reencodeJpeg(bytes, 0.6);
            // Bytes that are no picture stop the export; an encoder that gives nothing leaves
            // the field empty.
            if (encoded.isEmpty() && ImageCoding::decode(bytes).isNull())
                fatalError(QStringLiteral("Unexpectedly found nil while unwrapping an Optional "
                                          "value"),
                           "Pelvane/ExportViewController", 160);
            return ImageCoding::base64(encoded);
        });
    for (qsizetype i = 0; i < distinct.size(); ++i)
        done[distinct[i]] = encoded[i];
    return done;
}

void appendText(QByteArray& out, const QString& text) {
    out += text.toUtf8();
}

} // namespace

QList<CoinPtr> coinsInFileOrder(ManagedObjectContext& context) {
    FetchRequest request(QStringLiteral("Coins"));
    request.sortDescriptors = {{QStringLiteral("denomination"), true},
                               {QStringLiteral("year"), true},
                               {QStringLiteral("mintMark"), true}};
    request.returnsObjectsAsFaults = false;
    return fetchOrPrint<Coins>(context, request);
}

QByteArray exchangeText(ManagedObjectContext& context, const Progress& progress) {
    return exchangeText(coinsInFileOrder(context), progress);
}

QByteArray exchangeText(const QList<CoinPtr>& coins, const Progress& progress) {
    // Picture bytes are read here, on the store's thread; only the coding runs elsewhere.
    QList<QByteArray> pictures;
    pictures.reserve(coins.size() * 2);
    for (const CoinPtr& c : coins) {
        pictures.append(c->frontImage());
        pictures.append(c->backImage());
    }
    const QHash<QByteArray, QByteArray> encoded = reencodeAll(pictures);

    QByteArray out;
    out.reserve(qsizetype(coins.size()) * (400 + 2 * 4000) + 16);
    out += Marker;
    out += '\n';
    const int total = int(coins.size());
    for (int i = 0; i < total; ++i) {
        const Coins& c = *coins[i];
        QString descrip = c.descrip();
        QString notes = c.notes();
        descrip.remove(u'^');
        notes.remove(u'^');
        notes.replace(u'\n', u'~');
        const QString fields[] = {c.country(),
                                  c.denomination(),
                                  descrip,
                                  c.designer(),
                                  Numbers::formatDouble(c.diameter()),
                                  c.edge(),
                                  c.gradeNumber(),
                                  c.mintLocation(),
                                  c.mintMark(),
                                  notes,
                                  c.period(),
                                  QString::number(c.quantity()),
                                  c.serialNumber(),
                                  c.strikeCharacter(),
                                  Numbers::formatDouble(c.thickness()),
                                  Numbers::formatFloat(c.totalValue()),
                                  Numbers::formatFloat(c.value()),
                                  Numbers::formatDouble(c.weight()),
                                  QString::number(c.year())};
        for (const QString& f : fields) {
            appendText(out, f);
            out += '^';
        }
        const QByteArray& front = pictures[2 * i];
        const QByteArray& back = pictures[2 * i + 1];
        if (!front.isNull())
            out += encoded.value(front);
        out += '^';
        if (!back.isNull())
            out += encoded.value(back);
        // The record number follows the back picture directly: the reader never splits it off.
        out += QByteArray::number(c.id());
        out += '\n';
        if (progress)
            progress(i + 1, total);
    }
    return out;
}

} // namespace Exchange
