#include "model/Numbers.h"

#include <charconv>
#include <cstring>

namespace Numbers {

namespace {

// Checks the decimal-literal shape and copies the text (sign stripped of '+') into buf.
bool decimalLiteral(QStringView text, char* buf, std::size_t cap, std::size_t& len) {
    const qsizetype n = text.size();
    if (n == 0 || std::size_t(n) >= cap)
        return false;
    qsizetype i = 0;
    len = 0;
    if (text[0] == u'+' || text[0] == u'-') {
        if (text[0] == u'-')
            buf[len++] = '-';
        ++i;
    }
    int digits = 0;
    bool point = false;
    for (; i < n; ++i) {
        const QChar c = text[i];
        if (c >= u'0' && c <= u'9') {
            ++digits;
        } else if (c == u'.' && !point) {
            point = true;
        } else {
            break;
        }
        buf[len++] = char(c.unicode());
    }
    if (digits == 0)
        return false;
    if (i < n && (text[i] == u'e' || text[i] == u'E')) {
        buf[len++] = 'e';
        ++i;
        if (i < n && (text[i] == u'+' || text[i] == u'-'))
            buf[len++] = char(text[i++].unicode());
        int expDigits = 0;
        for (; i < n && text[i] >= u'0' && text[i] <= u'9'; ++i, ++expDigits)
            buf[len++] = char(text[i].unicode());
        if (expDigits == 0)
            return false;
    }
    return i == n;
}

template <typename T> std::optional<T> parseReal(QStringView text) {
    char buf[128];
    std::size_t len = 0;
    if (!decimalLiteral(text, buf, sizeof buf, len))
        return std::nullopt;
    T value{};
    auto [end, ec] = std::from_chars(buf, buf + len, value);
    if (ec != std::errc() || end != buf + len)
        return std::nullopt;
    return value;
}

// Plain digits between 1e-4 and the largest exactly counted whole number of the type
// (2^53, 2^24), exponent form outside.
template <typename T> QString formatReal(T value, T large) {
    char buf[400];
    const T magnitude = value < 0 ? -value : value;
    const bool plain = magnitude == 0 || (magnitude >= T(1e-4) && magnitude < large);
    auto [end, ec] =
        std::to_chars(buf, buf + sizeof buf - 1, value,
                      plain ? std::chars_format::fixed : std::chars_format::scientific);
    if (ec != std::errc())
        return QString();
    *end = '\0';
    QString text = QString::fromLatin1(buf, end - buf);
    if (!std::strpbrk(buf, ".enai"))
        text += QLatin1String(".0");
    return text;
}

} // namespace

std::optional<qint16> parseInt16(QStringView text) {
    const qsizetype n = text.size();
    qsizetype i = 0;
    bool negative = false;
    if (n > 0 && (text[0] == u'+' || text[0] == u'-')) {
        negative = text[0] == u'-';
        ++i;
    }
    if (i == n)
        return std::nullopt;
    qint64 value = 0;
    for (; i < n; ++i) {
        const QChar c = text[i];
        if (c < u'0' || c > u'9')
            return std::nullopt;
        value = value * 10 + (c.unicode() - u'0');
        if (value > 32768)
            return std::nullopt;
    }
    if (negative)
        value = -value;
    if (value > 32767)
        return std::nullopt;
    return qint16(value);
}

std::optional<double> parseDouble(QStringView text) {
    return parseReal<double>(text);
}
std::optional<float> parseFloat(QStringView text) {
    return parseReal<float>(text);
}
QString formatDouble(double value) {
    return formatReal(value, 9007199254740992.0);
}
QString formatFloat(float value) {
    return formatReal(value, 16777216.0f);
}

} // namespace Numbers
