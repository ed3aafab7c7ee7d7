#include "screens/feedback/ReviewService.h"

#include "platform/core/UserDefaults.h"

namespace {
const QString kLastRequest = QStringLiteral("ReviewService.lastRequest");
}

ReviewService::ReviewService(std::function<bool()> ask)
    : defaults(UserDefaults::standard())
    , ask_(std::move(ask)) {}

std::optional<QDateTime> ReviewService::lastRequest() const {
    const QVariant v = defaults.objectForKey(kLastRequest);
    if (v.typeId() != QMetaType::QDateTime || !v.toDateTime().isValid())
        return std::nullopt;
    return v.toDateTime();
}

void ReviewService::setLastRequest(const std::optional<QDateTime>& when) {
    if (when)
        defaults.setObject(*when, kLastRequest);
    else
        defaults.removeObjectForKey(kLastRequest);
}

bool ReviewService::canRequestReview() const {
    const auto last = lastRequest();
    if (!last)
        return true;
    return *last < now().addDays(-7);
}

void ReviewService::requestReview() {
    if (!canRequestReview())
        return;
    if (ask_)
        ask_();
    setLastRequest(now());
}
