#include "TestSupport.h"
#include "platform/core/UserDefaults.h"
#include "screens/feedback/ReviewService.h"

TEST_F(PelvaneTest, ReviewIsAskedAtMostOnceInSevenDays) {
    int asked = 0;
    ReviewService service([&] {
        ++asked;
        return true;
    });
    QDateTime clock(QDate(2026, 3, 1), QTime(12, 0, 0));
    service.now = [&] { return clock; };

    EXPECT_FALSE(service.lastRequest().has_value());
    service.requestReview(); // nothing recorded yet: asks at once
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(service.lastRequest(), clock);

    clock = clock.addDays(7); // exactly seven days: not yet
    service.requestReview();
    EXPECT_EQ(asked, 1);
    clock = clock.addSecs(1); // one second later it may
    service.requestReview();
    EXPECT_EQ(asked, 2);

    // The date survives in the preferences file; a value that is no date counts as absent.
    UserDefaults::standard().synchronize();
    UserDefaults::useFile(path("Pelvane.ini"));
    ReviewService later;
    later.now = service.now;
    EXPECT_EQ(later.lastRequest(), clock);
    UserDefaults::standard().setObject(QStringLiteral("yesterday"), "ReviewService.lastRequest");
    EXPECT_FALSE(later.lastRequest().has_value());
    EXPECT_TRUE(later.canRequestReview());
}
