#include "model/CoinAttributes.h"

#include <array>

namespace {
enum : int {
#define PELVANE_INDEX(name, Name, type, file, key, rule) k_##name,
    PELVANE_COIN_ATTRIBUTES(PELVANE_INDEX)
#undef PELVANE_INDEX
};

constexpr CoinAttribute kAll[] = {
#define PELVANE_ROW(name, Name, type, file, key, rule)                                             \
    {#name, k_##name, file, key, ExchangeRule::rule},
    PELVANE_COIN_ATTRIBUTES(PELVANE_ROW)
#undef PELVANE_ROW
};
static_assert(std::size(kAll) == CoinAttributes::count);

// Each file position and each key once: a row that repeats one fails the build.
constexpr bool eachOnce(int CoinAttribute::*field, int count) {
    for (int n = 0; n < count; ++n) {
        int found = 0;
        for (const CoinAttribute& a : kAll)
            found += a.*field == n ? 1 : 0;
        if (found != 1)
            return false;
    }
    return true;
}
static_assert(eachOnce(&CoinAttribute::filePosition, CoinAttributes::count));
static_assert(eachOnce(&CoinAttribute::importKey, CoinAttributes::importKeyCount));

template <int CoinAttribute::*field, int count> constexpr std::array<int, count> byField() {
    std::array<int, count> order{};
    for (const CoinAttribute& a : kAll)
        if (a.*field >= 0)
            order[std::size_t(a.*field)] = a.index;
    return order;
}
constexpr auto kFileOrder = byField<&CoinAttribute::filePosition, CoinAttributes::count>();
constexpr auto kKeyOrder = byField<&CoinAttribute::importKey, CoinAttributes::importKeyCount>();
} // namespace

namespace CoinAttributes {
const CoinAttribute* all() {
    return kAll;
}
const CoinAttribute& atFilePosition(int position) {
    return kAll[kFileOrder[std::size_t(position)]];
}
const CoinAttribute& importKey(int key) {
    return kAll[kKeyOrder[std::size_t(key)]];
}
} // namespace CoinAttributes
