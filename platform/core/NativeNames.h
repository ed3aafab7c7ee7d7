#pragma once
// File names as the system gives them: bytes, usually UTF-8 but not always. A name that is not
// valid UTF-8 still names one file, and must name the same file when it goes back to the system.
#include <QByteArray>
#include <QString>

namespace Files {
// The name as text: UTF-8 decoded, and each byte that is not part of a valid UTF-8 sequence
// kept as the lone surrogate U+DC00 + byte, so that no two names read the same.
QString fromNativeName(const QByteArray& bytes);
// The bytes of a name for the system: the lone surrogates U+DC80..U+DCFF become their byte
// again, everything else is UTF-8. fromNativeName's text gives back exactly the bytes it came
// from.
QByteArray nativeName(const QString& name);
} // namespace Files
