// Reading an exchange file: its text as UTF-8, its coin lines, and what each field gives its
// attribute. The merge (ExchangeMerge.cpp) decides which coin a line goes to.
#include "exchange/ExchangeLines.h"

#include "exchange/ExchangeWriter.h"
#include "model/Numbers.h"
#include "model/Records.h"
#include "platform/core/Console.h"
#include "platform/core/Fatal.h"
#include "platform/graphics/ImageCoding.h"

#include <QStringDecoder>

#include <utility>

namespace Exchange {

namespace {

constexpr int kFirstPicturePosition = 19;

QByteArrayView unquotedPicture(QByteArrayView field, QByteArray& unquoted) {
    if (!field.contains('"'))
        return field;
    unquoted = field.toByteArray();
    unquoted.replace("\"", "");
    return unquoted;
}

// What a field gives its attribute.
struct FieldValue {
    QVariant value;     // a text as its UTF-8 bytes where it is valid UTF-8
    bool parsed = true; // false for a number that does not parse (value invalid)
    bool skip = false;  // the field is empty once its double quotes are dropped: nothing to set
    QString shown;      // the field as the fatal stop of a number names it
};

// The attribute value a field gives. Pictures that are no valid base64 give no value. Double
// quotes are dropped first.
FieldValue convert(AttributeType type, ExchangeRule rule, QByteArrayView field,
                   const PreparedPicture* picture) {
    FieldValue out;
    if (type == AttributeType::Data) {
        // Pictures are read from the bytes: base64 is ASCII, so nothing else can be valid.
        QByteArray unquoted;
        field = unquotedPicture(field, unquoted);
        out.skip = field.isEmpty();
        if (picture) {
            if (picture->bytes)
                out.value = *picture->bytes;
        } else if (auto bytes = ImageCoding::strictBase64Decode(field)) {
            out.value = *bytes;
        }
        return out;
    }
    // Quotes and tildes are ASCII, so valid UTF-8 loses and changes them in its bytes as text
    // would; the text is then held as those bytes (see ManagedObject::setText), a huge field
    // once rather than also as UTF-16.
    if (type == AttributeType::Text && QUtf8StringView(field).isValidUtf8()) {
        const bool notes = rule == ExchangeRule::Notes;
        QByteArray bytes(field.size(), Qt::Uninitialized);
        char* write = bytes.data();
        for (const char c : field)
            if (c != '"')
                *write++ = notes && c == '~' ? '\n' : c;
        bytes.truncate(write - bytes.constData());
        out.skip = bytes.isEmpty();
        out.value = bytes;
        return out;
    }
    QString text = QString::fromUtf8(field);
    text.remove(u'"');
    out.skip = text.isEmpty();
    out.shown = text;
    switch (type) {
    case AttributeType::Text:
        out.value = rule == ExchangeRule::Notes ? text.replace(u'~', u'\n') : text;
        return out;
    case AttributeType::Data:
        break;
    case AttributeType::Int16:
        if (auto v = Numbers::parseInt16(text)) {
            out.value = int(*v);
            return out;
        }
        break;
    case AttributeType::Double:
        if (auto v = Numbers::parseDouble(text)) {
            out.value = *v;
            return out;
        }
        break;
    case AttributeType::Float:
        if (auto v = Numbers::parseFloat(text)) {
            out.value = *v;
            return out;
        }
        break;
    }
    out.parsed = false;
    return out;
}

} // namespace

Lines readLines(QByteArray& text) {
    Lines out;
    // The three replacements (carriage returns to line feeds, apostrophes dropped, commas to
    // semicolons) touch ASCII characters only, so they are safe on UTF-8 bytes; one pass does
    // them all.
    char* write = text.data();
    if (!text.contains('\r')) {
        // The file this program writes: the pass without the carriage returns' bookkeeping,
        // which a file of hundreds of megabytes would feel.
        for (const char c : std::as_const(text)) {
            if (c == '\'')
                continue;
            *write++ = c == ',' ? ';' : c;
        }
    } else {
        // A carriage return and line feed end one line, so that lines count as in the file.
        bool afterReturn = false;
        for (const char c : std::as_const(text)) {
            if (c == '\'')
                continue;
            if (std::exchange(afterReturn, c == '\r') && c == '\n')
                continue;
            *write++ = c == '\r' ? '\n' : (c == ',' ? ';' : c);
        }
    }
    text.truncate(write - text.constData());
    const QByteArrayView marker(Marker);
    bool markerFound = false;
    for (qsizetype start = 0, number = 1; start <= text.size(); ++number) {
        qsizetype end = text.indexOf('\n', start);
        if (end < 0)
            end = text.size();
        const QByteArrayView line(text.constData() + start, end - start);
        if (line == marker) {
            markerFound = true;
        } else if (!line.isEmpty()) {
            out.lines.append(line);
            out.numbers.append(number);
        }
        start = end + 1;
    }
    out.lastLineUnended = !text.isEmpty() && !text.endsWith('\n');
    if (out.lastLineUnended)
        Console::log(QStringLiteral("Warning: the last line has no line end; the file may have "
                                    "been cut short"));
    out.wrongFile = !markerFound;
    return out;
}

Fields splitFields(QByteArrayView line) {
    Fields fields;
    qsizetype start = 0;
    for (qsizetype caret; (caret = line.indexOf('^', start)) >= 0; start = caret + 1)
        fields.append(line.sliced(start, caret - start));
    fields.append(line.sliced(start));
    return fields;
}

QString fieldText(const Fields& fields, qsizetype position) {
    return position < fields.size() ? QString::fromUtf8(fields[position]) : QStringLiteral("");
}

PreparedLine preparePictures(QByteArrayView line) {
    PreparedLine prepared;
    const Fields fields = splitFields(line);
    for (int i = 0; i < 2; ++i) {
        if (fields.size() <= kFirstPicturePosition + i)
            break;
        QByteArray unquoted;
        const QByteArrayView field = unquotedPicture(fields[kFirstPicturePosition + i], unquoted);
        PreparedPicture& picture = prepared[std::size_t(i)];
        picture.bytes = ImageCoding::strictBase64Decode(field);
        picture.readable = picture.bytes && ImageCoding::readable(*picture.bytes);
    }
    return prepared;
}

void apply(Coins& coin, const Fields& fields, bool isNew, const PreparedLine& pictures,
           const std::function<void()>& beforeStop) {
    const EntityDescription& entity = coin.entity();
    for (qsizetype p = 0; p < fields.size(); ++p) {
        const CoinAttribute& field = CoinAttributes::atFilePosition(int(p));
        const int attribute = field.index;
        const AttributeType type = entity.attributes[std::size_t(attribute)].type;
        const qsizetype pictureIndex = p - kFirstPicturePosition;
        const PreparedPicture* picture =
            type == AttributeType::Data && pictureIndex >= 0 && pictureIndex < 2
                ? &pictures[std::size_t(pictureIndex)]
                : nullptr;
        const FieldValue converted = convert(type, field.rule, fields[p], picture);
        const QVariant& value = converted.value;
        if (converted.skip)
            continue;
        if (!converted.parsed && isNew) {
            beforeStop();
            fatalError(QStringLiteral("A number that does not parse: \"%1\" for %2")
                           .arg(converted.shown, QLatin1String(field.name)),
                       StopSites::ImportNumber);
        }
        if (type == AttributeType::Data && !value.isValid() && isNew)
            continue; // not valid base64: the new coin simply has no such picture
        if (type == AttributeType::Data && value.isValid() &&
            !(picture ? picture->readable : ImageCoding::readable(value.toByteArray()))) {
            // Kept, it would stop every later export: the coin goes on without it.
            Console::log(QStringLiteral("Warning: the %1 picture of %2 cannot be read; the coin "
                                        "is kept without it")
                             .arg(attribute == Coins::Attr::frontImage ? "front" : "back",
                                  coinForMessage(coin)));
            if (isNew)
                continue;
            coin.setValue(attribute, QVariant());
            continue;
        }
        if (type == AttributeType::Text && value.typeId() == QMetaType::QByteArray)
            coin.setText(attribute, value.toByteArray());
        else
            coin.setValue(attribute, value);
    }
}

std::optional<QByteArray> utf8Text(QByteArray bytes) {
    const auto encoding = QStringConverter::encodingForData(bytes);
    if (!encoding || *encoding == QStringConverter::Utf8) {
        // Checked where it lies rather than copied into text and back: the file is held once.
        if (!QUtf8StringView(bytes).isValidUtf8())
            return std::nullopt;
        if (bytes.startsWith("\xEF\xBB\xBF"))
            bytes.remove(0, 3);
        return bytes;
    }
    QStringDecoder decoder(*encoding);
    const QString text = decoder(std::exchange(bytes, {}));
    if (decoder.hasError())
        return std::nullopt;
    return text.toUtf8();
}

} // namespace Exchange
