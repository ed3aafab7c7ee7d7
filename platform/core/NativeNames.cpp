#include "platform/core/NativeNames.h"

namespace Files {

namespace {
constexpr char16_t kEscape = 0xDC00;

bool continuation(uchar b) {
    return (b & 0xC0) == 0x80;
}

// The length of the valid UTF-8 sequence at `at`, or 0. Overlong forms, surrogates and code
// points past U+10FFFF are not valid: their bytes are kept one by one.
qsizetype sequenceAt(const QByteArray& bytes, qsizetype at, char32_t* code) {
    const auto byte = [&](qsizetype i) { return uchar(bytes[at + i]); };
    const qsizetype left = bytes.size() - at;
    const uchar lead = byte(0);
    if (lead < 0x80) {
        *code = lead;
        return 1;
    }
    qsizetype length = 0;
    uchar low = 0x80, high = 0xBF; // the range of the second byte
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0)
            low = 0xA0;
        else if (lead == 0xED)
            high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0)
            low = 0x90;
        else if (lead == 0xF4)
            high = 0x8F;
    } else {
        return 0;
    }
    if (left < length || byte(1) < low || byte(1) > high)
        return 0;
    char32_t c = lead & (0x7F >> length);
    for (qsizetype i = 1; i < length; ++i) {
        if (!continuation(byte(i)))
            return 0;
        c = (c << 6) | (byte(i) & 0x3F);
    }
    *code = c;
    return length;
}

void appendUtf8(QByteArray& out, char32_t c) {
    if (c < 0x80) {
        out += char(c);
    } else if (c < 0x800) {
        out += char(0xC0 | (c >> 6));
        out += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += char(0xE0 | (c >> 12));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    } else {
        out += char(0xF0 | (c >> 18));
        out += char(0x80 | ((c >> 12) & 0x3F));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    }
}
} // namespace

QString fromNativeName(const QByteArray& bytes) {
    QString name;
    name.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size();) {
        char32_t code = 0;
        if (const qsizetype length = sequenceAt(bytes, at, &code); length > 0) {
            const char32_t one[] = {code};
            name += QString::fromUcs4(one, 1);
            at += length;
        } else {
            name += QChar(char16_t(kEscape + uchar(bytes[at])));
            ++at;
        }
    }
    return name;
}

QByteArray nativeName(const QString& name) {
    QByteArray bytes;
    bytes.reserve(name.size());
    for (qsizetype i = 0; i < name.size(); ++i) {
        const char16_t u = name[i].unicode();
        if (QChar::isHighSurrogate(u) && i + 1 < name.size() && name[i + 1].isLowSurrogate()) {
            appendUtf8(bytes, QChar::surrogateToUcs4(u, name[i + 1].unicode()));
            ++i;
        } else if (u >= kEscape + 0x80 && u <= kEscape + 0xFF) {
            bytes += char(u - kEscape);
        } else {
            // Any other lone surrogate (none comes from a name the system gave) is written in
            // the three-byte form, so that two such names still differ.
            appendUtf8(bytes, u);
        }
    }
    return bytes;
}

} // namespace Files
