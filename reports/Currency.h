#pragma once
// Money as the screens and the reports show it, in the currency style of the user's locale.
#include <QString>

namespace Currency {
// "0" when the locale cannot format the amount.
QString text(double amount);
} // namespace Currency
