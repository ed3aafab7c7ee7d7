#include "screens/entry/CoinFormRules.h"

#include "model/Numbers.h"
#include "platform/core/Fatal.h"

namespace CoinFormRules {

namespace {

[[noreturn]] void unparsable(const QString& text, const char* screen, int line) {
    fatalError(QStringLiteral("A number that does not parse: \"%1\"").arg(text), screen, line);
}

const char* const kAdd = "Pelvane/AddViewController";
const char* const kEdit = "Pelvane/EditViewController";

} // namespace

QString trimmed(const QString& text) {
    qsizetype start = 0, end = text.size();
    while (start < end && (text[start] == u' ' || text[start] == u'\t'))
        ++start;
    while (end > start && (text[end - 1] == u' ' || text[end - 1] == u'\t'))
        --end;
    return text.mid(start, end - start);
}

bool hasRequiredFields(const CoinFormTexts& t) {
    return !t.denomination.isEmpty() && !t.year.isEmpty();
}

void applyAddForm(Coins& coin, const CoinFormTexts& t, qint16 coinID) {
    auto int16 = [](const QString& s) {
        auto v = Numbers::parseInt16(s);
        if (!v)
            unparsable(s, kAdd, __LINE__);
        return *v;
    };
    auto real = [](const QString& s) {
        auto v = Numbers::parseDouble(s);
        if (!v)
            unparsable(s, kAdd, __LINE__);
        return *v;
    };
    coin.setId(coinID);
    coin.setDenomination(trimmed(t.denomination));
    coin.setYear(int16(t.year));
    if (!t.quantity.isEmpty())
        coin.setQuantity(int16(t.quantity));
    if (!t.descrip.isEmpty())
        coin.setDescrip(trimmed(t.descrip));
    if (!t.country.isEmpty())
        coin.setCountry(trimmed(t.country));
    if (!t.diameter.isEmpty())
        coin.setDiameter(real(t.diameter));
    if (!t.weight.isEmpty())
        coin.setWeight(real(t.weight));
    if (!t.thickness.isEmpty())
        coin.setThickness(real(t.thickness));
    if (!t.edge.isEmpty())
        coin.setEdge(trimmed(t.edge));
    if (!t.value.isEmpty()) {
        auto v = Numbers::parseFloat(t.value);
        if (!v)
            unparsable(t.value, kAdd, __LINE__);
        coin.setValue(*v);
    }
    if (!t.strikeCharacter.isEmpty())
        coin.setStrikeCharacter(t.strikeCharacter);
    if (!t.gradeNumber.isEmpty())
        coin.setGradeNumber(t.gradeNumber);
    coin.setMintMark(t.mintMark.isEmpty() ? QStringLiteral("None") : trimmed(t.mintMark));
    if (!t.mintLocation.isEmpty())
        coin.setMintLocation(trimmed(t.mintLocation));
    if (!t.serialNumber.isEmpty())
        coin.setSerialNumber(trimmed(t.serialNumber));
    if (!t.period.isEmpty())
        coin.setPeriod(trimmed(t.period));
    if (!t.designer.isEmpty())
        coin.setDesigner(trimmed(t.designer));
    if (t.frontImage && !t.frontImage->isEmpty())
        coin.setFrontImage(*t.frontImage);
    if (t.backImage && !t.backImage->isEmpty())
        coin.setBackImage(*t.backImage);
}

void applyEditForm(Coins& coin, const CoinFormTexts& t) {
    auto int16 = [](const QString& s) {
        auto v = Numbers::parseInt16(s);
        if (!v)
            unparsable(s, kEdit, __LINE__);
        return *v;
    };
    // Empty stores 0; a text that is no number clears the attribute.
    auto real = [&coin](int attribute, const QString& s) {
        if (s.isEmpty()) {
            coin.setValue(attribute, 0.0);
        } else if (auto v = Numbers::parseDouble(s)) {
            coin.setValue(attribute, *v);
        } else {
            coin.setValue(attribute, QVariant());
        }
    };
    coin.setDenomination(trimmed(t.denomination));
    coin.setYear(int16(t.year));
    coin.setQuantity(int16(t.quantity));
    coin.setDescrip(trimmed(t.descrip));
    coin.setCountry(trimmed(t.country));
    real(Coins::Attr::diameter, t.diameter);
    real(Coins::Attr::weight, t.weight);
    real(Coins::Attr::thickness, t.thickness);
    coin.setEdge(trimmed(t.edge));
    if (t.value.isEmpty()) {
        coin.setValue(0.0f);
    } else if (auto v = Numbers::parseFloat(t.value)) {
        coin.setValue(*v);
    } else {
        coin.setValue(Coins::Attr::value, QVariant());
    }
    coin.setStrikeCharacter(trimmed(t.strikeCharacter));
    coin.setGradeNumber(trimmed(t.gradeNumber));
    coin.setMintMark(t.mintMark.isEmpty() ? QStringLiteral("None") : trimmed(t.mintMark));
    coin.setMintLocation(trimmed(t.mintLocation));
    coin.setSerialNumber(trimmed(t.serialNumber));
    coin.setPeriod(trimmed(t.period));
    coin.setDesigner(trimmed(t.designer));
    coin.setNotes(t.notes);
    if (t.frontImage)
        coin.setFrontImage(*t.frontImage);
    if (t.backImage)
        coin.setBackImage(*t.backImage);
}

CoinFormTexts textsFor(const Coins& coin) {
    CoinFormTexts t;
    t.denomination = coin.denomination();
    t.year = QString::number(coin.year());
    t.quantity = QString::number(coin.quantity());
    t.descrip = coin.descrip();
    t.country = coin.country();
    t.diameter = Numbers::formatDouble(coin.diameter());
    t.weight = Numbers::formatDouble(coin.weight());
    t.thickness = Numbers::formatDouble(coin.thickness());
    t.edge = coin.edge();
    t.strikeCharacter = coin.strikeCharacter();
    t.gradeNumber = coin.gradeNumber();
    t.mintMark = coin.mintMark();
    t.mintLocation = coin.mintLocation();
    t.serialNumber = coin.serialNumber();
    t.period = coin.period();
    t.designer = coin.designer();
    t.value = QString::asprintf("%.2f", double(coin.value()));
    t.notes = coin.notes();
    return t;
}

} // namespace CoinFormRules
