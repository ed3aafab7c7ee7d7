// The coin's attribute table against what is built from it: the entity, the constants, and the
// exchange writer's and reader's field orders. A row that moves, or a field written or read at
// another place than its row says, fails here.
#include "StoreFixture.h"
#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "model/CoinAttributes.h"
#include "platform/graphics/ImageCoding.h"

#include <QImage>

namespace {
// A value of the attribute's type that no other attribute is given.
QVariant distinct(const CoinAttribute& a, AttributeType type) {
    switch (type) {
    case AttributeType::Text:
        return QString::fromLatin1(a.name) + QStringLiteral("-text");
    case AttributeType::Int16:
        return 100 + a.index;
    case AttributeType::Double:
        return 1000.25 + a.index;
    case AttributeType::Float:
        return float(2000.5 + a.index);
    case AttributeType::Data: {
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(a.index * 15, 200, 200));
        return ImageCoding::coinPictureData(image);
    }
    }
    return {};
}
} // namespace

TEST_F(StoreTest, TheExchangeFileFollowsTheAttributeTable) {
    const EntityDescription& entity = Model::coins();
    ASSERT_EQ(int(entity.attributes.size()), CoinAttributes::count);
    for (int i = 0; i < CoinAttributes::count; ++i) {
        const CoinAttribute& a = CoinAttributes::all()[i];
        EXPECT_EQ(a.index, i);
        EXPECT_EQ(entity.indexOf(QLatin1String(a.name)), i) << a.name;
        EXPECT_EQ(&CoinAttributes::atFilePosition(a.filePosition), &a) << a.name;
    }
    EXPECT_EQ(Coins::Attr::year, entity.indexOf("year"));
    EXPECT_EQ(Coins::Attr::backImage, entity.indexOf("backImage"));

    // Every attribute holds a value of its own; the writer puts each at its row's position.
    auto coin = ctx().insert<Coins>();
    for (int i = 0; i < CoinAttributes::count; ++i) {
        const CoinAttribute& a = CoinAttributes::all()[i];
        coin->setValue(i, distinct(a, entity.attributes[std::size_t(i)].type));
    }
    ASSERT_TRUE(ctx().save().ok());
    const QByteArray line = Exchange::exchangeText(ctx()).value().split('\n').value(1);
    const QList<QByteArray> fields = line.split('^');
    ASSERT_EQ(fields.size(), CoinAttributes::count - 1); // the record number has no field
    for (int p = 0; p < CoinAttributes::count - 1; ++p) {
        const CoinAttribute& a = CoinAttributes::atFilePosition(p);
        const QVariant held = coin->value(a.index);
        switch (a.rule) {
        case ExchangeRule::Picture: {
            QByteArray text = fields[p];
            if (a.index == Coins::Attr::backImage) {
                // The record number is glued to the back picture.
                ASSERT_TRUE(text.endsWith(QByteArray::number(coin->id())));
                text.chop(QByteArray::number(coin->id()).size());
            }
            const auto bytes = ImageCoding::strictBase64Decode(text);
            ASSERT_TRUE(bytes.has_value()) << a.name;
            // Re-encoded, the picture keeps its colour within the JPEG's rounding.
            const QColor got = ImageCoding::decode(*bytes).pixelColor(50, 50);
            const QColor want = ImageCoding::decode(held.toByteArray()).pixelColor(50, 50);
            EXPECT_LE(qAbs(got.red() - want.red()) + qAbs(got.green() - want.green()) +
                          qAbs(got.blue() - want.blue()),
                      12)
                << a.name;
            break;
        }
        case ExchangeRule::RecordNumber:
            ADD_FAILURE() << "the record number has a field of its own";
            break;
        default:
            if (entity.attributes[std::size_t(a.index)].type == AttributeType::Text)
                EXPECT_EQ(QString::fromUtf8(fields[p]), held.toString()) << a.name;
            else
                EXPECT_EQ(fields[p].toDouble(), held.toDouble()) << a.name;
        }
    }

    // Read into an empty collection, every field comes back into its attribute, the record
    // number excepted (it is never read) and the back picture too (its digits spoil it).
    QVariantList written;
    for (int i = 0; i < CoinAttributes::count; ++i)
        written << coin->value(i);
    ctx().deleteObject(coin);
    ASSERT_TRUE(ctx().save().ok());
    const auto result = Exchange::mergeExchangeText(ctx(), "[PELVANE]\n" + line + "\n");
    ASSERT_EQ(result.created, 1);
    FetchRequest all(QStringLiteral("Coins"));
    const QList<CoinPtr> read = ctx().fetch<Coins>(all);
    ASSERT_EQ(read.size(), 1);
    for (int i = 0; i < CoinAttributes::count; ++i) {
        const CoinAttribute& a = CoinAttributes::all()[i];
        const AttributeType type = entity.attributes[std::size_t(i)].type;
        if (a.rule == ExchangeRule::RecordNumber) {
            EXPECT_EQ(read[0]->id(), 0);
        } else if (a.index == Coins::Attr::backImage) {
            EXPECT_FALSE(read[0]->hasValue(i));
        } else if (type == AttributeType::Data) {
            EXPECT_TRUE(read[0]->hasValue(i)) << a.name;
        } else {
            EXPECT_EQ(read[0]->value(i), written[i]) << a.name;
        }
    }
}
