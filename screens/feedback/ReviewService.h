#pragma once
// Decides when the platform's review prompt may be asked for: at most once in any seven days.
#include <QDateTime>
#include <functional>
#include <optional>

class UserDefaults;

class ReviewService {
public:
    // `ask` hands the request to the platform, which decides whether to show anything; it is
    // given whether a window is there to show it in.
    explicit ReviewService(std::function<bool()> ask = {});

    // Read from and written to "ReviewService.lastRequest"; a value that is not a date is absent.
    std::optional<QDateTime> lastRequest() const;
    void setLastRequest(const std::optional<QDateTime>& when);
    bool canRequestReview() const;
    // Asks if allowed, then records the time (also when there was no window to ask in).
    void requestReview();

    // The clock, replaceable in tests.
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTime(); };

private:
    UserDefaults& defaults;
    std::function<bool()> ask_;
};
