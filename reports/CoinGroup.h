#pragma once
// What a breakdown list, a print listing or a report from the command line is about: the coins
// of one denomination, one country or one year, sorted one way.
#include <QString>

enum class GroupKind { Denomination, Country, Year };

struct CoinGroup {
    GroupKind kind = GroupKind::Denomination;
    QString value;         // the denomination, the country, or the year in decimal
    bool ascending = true; // the direction of the group's sort
    bool operator==(const CoinGroup&) const = default;
};
