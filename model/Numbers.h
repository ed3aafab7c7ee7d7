#pragma once
// Strict number parsing and shortest number texts, shared by the forms, lists and the
// exchange file. A text that does not parse yields no value; the caller decides what that means.
#include <QString>
#include <QStringView>
#include <optional>

namespace Numbers {

// Optional sign and decimal digits only, within -32768..32767.
std::optional<qint16> parseInt16(QStringView text);
// Full match of a decimal literal: optional sign, digits with at most one point, optional exponent.
std::optional<double> parseDouble(QStringView text);
std::optional<float> parseFloat(QStringView text);

// Shortest text that reads back to the same value, always with a fractional part ("0.0", "1e-05").
QString formatDouble(double value);
QString formatFloat(float value);

} // namespace Numbers
