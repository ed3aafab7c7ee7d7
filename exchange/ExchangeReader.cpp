#include "exchange/ExchangeReader.h"

#include "model/PrintedFetch.h"

#include <QLocale>

#include "exchange/ExchangeWriter.h"
#include "model/ManagedObjectContext.h"
#include "model/Numbers.h"
#include "model/PersistentContainer.h"
#include "model/Records.h"
#include "platform/core/Console.h"
#include "platform/core/Fatal.h"
#include "platform/graphics/ImageCoding.h"

#include <QStringDecoder>
#include <QStringList>
#include <QVarLengthArray>
#include <QtConcurrent/QtConcurrentMap>

#include <array>
#include <functional>
#include <utility>
#include <vector>

namespace Exchange {

namespace {

// The import's four key conditions ("country == %@", ...), in the order of their index.
const std::array<QString, CoinAttributes::importKeyCount>& keyFormats() {
    static const auto formats = [] {
        std::array<QString, CoinAttributes::importKeyCount> f;
        for (int k = 0; k < CoinAttributes::importKeyCount; ++k)
            f[std::size_t(k)] =
                QLatin1String(CoinAttributes::importKey(k).name) + QLatin1String(" == %@");
        return f;
    }();
    return formats;
}

// The fields of one line as views of its bytes; "^" is ASCII, so no character is ever cut.
using Fields = QVarLengthArray<QByteArrayView, 24>;
Fields splitFields(QByteArrayView line) {
    Fields fields;
    qsizetype start = 0;
    for (qsizetype caret; (caret = line.indexOf('^', start)) >= 0; start = caret + 1)
        fields.append(line.sliced(start, caret - start));
    fields.append(line.sliced(start));
    return fields;
}

constexpr int kFirstPicturePosition = 19;

QByteArrayView unquotedPicture(QByteArrayView field, QByteArray& unquoted) {
    if (!field.contains('"'))
        return field;
    unquoted = field.toByteArray();
    unquoted.replace("\"", "");
    return unquoted;
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

// A key field's text; a field the line does not have is the empty text, which matches only a
// stored empty text, never an absent one.
QString fieldText(const Fields& fields, qsizetype position) {
    return position < fields.size() ? QString::fromUtf8(fields[position]) : QStringLiteral("");
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

} // namespace

Merge::Merge(ManagedObjectContext& context, QByteArray utf8, const QString& source)
    : context_(context)
    , cause_(context, ValueHistory::Import)
    , journalStep_(context, Journal::Import,
                   source.isEmpty() ? QStringLiteral("an exchange file") : source)
    , text_(std::move(utf8)) {
    // A second container for the same model, opened and released at once: a store it cannot
    // load stops the import before any line is merged.
    {
        PersistentContainer second(QStringLiteral("Pelvane"));
        second.loadPersistentStores([](const StoreDescription&, const std::optional<Error>& error) {
            if (error)
                unresolvedError(*error, StopSites::ImportStoreLoad);
        });
    }

    // The three replacements (carriage returns to line feeds, apostrophes dropped, commas to
    // semicolons) touch ASCII characters only, so they are safe on UTF-8 bytes; one pass does
    // them all.
    QByteArray& text = text_;
    char* write = text.data();
    for (const char c : std::as_const(text)) {
        if (c == '\'')
            continue;
        *write++ = c == '\r' ? '\n' : (c == ',' ? ';' : c);
    }
    text.truncate(write - text.constData());
    const QByteArrayView marker(Marker);
    for (qsizetype start = 0; start <= text.size();) {
        qsizetype end = text.indexOf('\n', start);
        if (end < 0)
            end = text.size();
        const QByteArrayView line(text.constData() + start, end - start);
        if (!line.isEmpty())
            lines_.append(line);
        start = end + 1;
    }
    result_.lastLineUnended = !text.isEmpty() && !text.endsWith('\n');
    if (result_.lastLineUnended)
        Console::log(QStringLiteral("Warning: the last line has no line end; the file may have "
                                    "been cut short"));
    result_.wrongFile = !lines_.contains(marker);
    lines_.removeIf([&](QByteArrayView l) { return l == marker; });
}

Merge::~Merge() {
    preparing_.waitForFinished();
    if (waitChanged_)
        context_.setWaitWhenBusy(true);
}

void Merge::prepare(qsizetype from) {
    preparing_.waitForFinished();
    preparingFrom_ = from;
    preparingLines_ = lines_.mid(from, std::min(PreparedLines, lines_.size() - from));
    preparing_ = QtConcurrent::mapped(preparingLines_, preparePictures);
}

// The pictures of a few lines are worked out while the lines before them are merged.
const PreparedLine& Merge::picturesOf(qsizetype line) {
    if (line < preparedFrom_ || line >= preparedFrom_ + prepared_.size()) {
        if (!preparing_.isValid() || preparingFrom_ != line)
            prepare(line);
        prepared_ = preparing_.results();
        preparedFrom_ = line;
        if (line + prepared_.size() < lines_.size())
            prepare(line + prepared_.size());
    }
    return prepared_[line - preparedFrom_];
}

// Waiting for the lock again on every line would take hours for a big file.
void Merge::dontWaitWhenBusy() {
    context_.setWaitWhenBusy(false);
    waitChanged_ = true;
}

bool Merge::step(qsizetype count) {
    if (result_.wrongFile)
        return false;
    ManagedObjectContext& context = context_;
    ImportResult& result = result_;
    // The saves of a step are committed together, and before the merge stops: a commit per
    // coin would write each index page again for every coin.
    ManagedObjectContext::SaveGroup group(context);
    // What the group's saves wrote and a failed commit would leave unsaved.
    int heldCreated = 0, heldUpdated = 0;
    auto commit = [&] {
        if (const Result<void> committed = group.commit(); !committed.ok()) {
            Console::log(committed.error().description());
            if (result.notSaved == 0)
                result.notSavedReason = committed.error().message;
            result.notSaved += heldCreated;
            result.updatedSinceSave += heldUpdated;
        }
        heldCreated = heldUpdated = 0;
    };
    const qsizetype stop = std::min(lines_.size(), next_ + std::max<qsizetype>(count, 1));
    for (; next_ < stop; ++next_) {
        if (group.held() >= SavesPerCommit)
            commit();
        const Fields fields = splitFields(lines_[next_]);
        const PreparedLine& pictures = picturesOf(next_);
        // A line with more fields than there are attributes is no line of ours, whether it
        // would create, update or be skipped.
        if (fields.size() > CoinAttributes::count) {
            commit();
            fatalError(QStringLiteral("A line has more than 22 fields"),
                       StopSites::ImportFieldCount);
        }
        // The lookup and the save that follows it hold the write lock together, so that two
        // imports of one file never both find a coin missing and both create it.
        if (const Result<void> locked = context.beginWriteBatch();
            !locked.ok() && locked.error().isBusy())
            dontWaitWhenBusy();
        // The key texts and the request go before the coin is written: a huge field is then
        // held as text once, not three times.
        const Result<QList<CoinPtr>> found = [&] {
            std::vector<Predicate> keys;
            keys.reserve(CoinAttributes::importKeyCount);
            for (int k = 0; k < CoinAttributes::importKeyCount; ++k)
                keys.push_back(Predicate::format(
                    keyFormats()[std::size_t(k)],
                    fieldText(fields, CoinAttributes::importKey(k).filePosition)));
            FetchRequest request(QStringLiteral("Coins"));
            request.predicate = Predicate::andPredicate(keys);
            request.returnsObjectsAsFaults = false;
            return fetchOrPrint<Coins>(context, request);
        }();
        if (!found.ok() && found.error().isBusy())
            dontWaitWhenBusy();
        const QList<CoinPtr> results = found.valueOr({});
        if (results.isEmpty()) {
            auto coin = context.insert<Coins>();
            apply(*coin, fields, true, pictures, commit);
            if (const auto failure = context.save(); !failure.ok()) {
                Console::log(failure.error().description());
                if (result.notSaved++ == 0)
                    result.notSavedReason = failure.error().message;
                if (failure.error().isBusy())
                    dontWaitWhenBusy();
            } else {
                // A save writes every coin left pending before it.
                heldCreated += result.notSaved + 1;
                heldUpdated += result.updatedSinceSave;
                result.notSaved = 0;
                result.updatedSinceSave = 0;
            }
            ++result.created;
        } else if (results.size() == 1) {
            // Left pending on purpose: the next save of the context writes it.
            apply(*results.first(), fields, false, pictures, commit);
            ++result.updated;
            ++result.updatedSinceSave;
        } else {
            ++result.skipped;
        }
    }
    commit();
    // The journal says what the import did in the words the command line prints.
    const QLocale english(QLocale::English);
    journalStep_.setDetail(
        QStringLiteral("%1 created, %2 updated")
            .arg(english.toString(result.created), english.toString(result.updated)));
    return next_ < lines_.size();
}

ImportResult mergeExchangeText(ManagedObjectContext& context, QByteArray text) {
    Merge merge(context, std::move(text));
    while (merge.step(merge.lineCount())) {
    }
    return merge.result();
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
