#pragma once
// Money on screen: the currency style of the user's current locale.
#include <QString>

QString currencyText(double amount);
