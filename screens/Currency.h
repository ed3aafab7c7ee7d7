#pragma once
// Money on screen, in the currency style of the user's locale.
#include <QString>

namespace Currency {
// "0" when the locale cannot format the amount.
QString text(double amount);
} // namespace Currency
