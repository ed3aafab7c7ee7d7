#include "reports/GroupReport.h"

#include "reports/CoinDocument.h"

#include <QTextDocument>

namespace {
using A = Coins::Attr;
QString yearText(const Coins& c) {
    return QString::number(c.year());
}
void denominationLine(CoinDocument& d, const Coins& c) {
    d.appendLine(CoinDocument::label(QT_TRANSLATE_NOOP("CoinDocument", "Denomination: ")), c,
                 A::denomination);
}
void descriptionLine(CoinDocument& d, const Coins& c) {
    d.appendLine(CoinDocument::label(QT_TRANSLATE_NOOP("CoinDocument", "Description: ")), c,
                 A::descrip);
}
void countryLine(CoinDocument& d, const Coins& c) {
    d.appendLine(CoinDocument::label(QT_TRANSLATE_NOOP("CoinDocument", "Country: ")), c,
                 A::country);
}
void gradeLine(CoinDocument& d, const Coins& c) {
    d.appendLine(CoinDocument::label(QT_TRANSLATE_NOOP("CoinDocument", "Grade #: ")), c,
                 A::gradeNumber);
}

// The three kinds of group, side by side.
const GroupReport kReports[] = {
    {.kind = GroupKind::Denomination,
     .name = "denomination",
     .predicate = "denomination == %@",
     .firstSortKey = "denomination",
     .secondSortKey = "year",
     .title = QT_TRANSLATE_NOOP("CoinDocument", "Coins Filtered by Denomination: "),
     .titleValue = [](const Coins& c) { return c.denomination(); },
     .pdfFileName = "CoinListByDenomination.pdf",
     .listingLines =
         [](CoinDocument& d, const Coins& c) {
             denominationLine(d, c);
             descriptionLine(d, c);
             countryLine(d, c);
         }},
    {.kind = GroupKind::Country,
     .name = "country",
     .predicate = "country == %@",
     .firstSortKey = "denomination",
     .secondSortKey = "year",
     .title = QT_TRANSLATE_NOOP("CoinDocument", "Coins Filtered by Country: "),
     .titleValue = [](const Coins& c) { return c.country(); },
     .pdfFileName = "CoinListByCountry.pdf",
     .listingLines =
         [](CoinDocument& d, const Coins& c) {
             countryLine(d, c);
             denominationLine(d, c);
             descriptionLine(d, c);
             gradeLine(d, c);
         }},
    {.kind = GroupKind::Year,
     .name = "year",
     .predicate = "year == %@",
     .firstSortKey = "year",
     .secondSortKey = "denomination",
     .title = QT_TRANSLATE_NOOP("CoinDocument", "Coins Filtered by Year: "),
     .titleValue = yearText,
     .pdfFileName = "CoinListByYear.pdf",
     .listingLines =
         [](CoinDocument& d, const Coins& c) {
             d.appendLine(CoinDocument::label(QT_TRANSLATE_NOOP("CoinDocument", "Year: ")),
                          yearText(c));
             denominationLine(d, c);
             descriptionLine(d, c);
             countryLine(d, c);
             gradeLine(d, c);
         }},
};

FetchRequest groupRequest(const CoinGroup& group) {
    FetchRequest request(QStringLiteral("Coins"));
    request.returnsObjectsAsFaults = false;
    request.predicate = Predicate::format(GroupReport::of(group).predicate, group.value);
    return request;
}
} // namespace

const GroupReport& GroupReport::of(GroupKind kind) {
    return kReports[int(kind)];
}

const GroupReport* GroupReport::named(const QString& name) {
    for (const GroupReport& r : kReports)
        if (r.name == name)
            return &r;
    return nullptr;
}

FetchRequest GroupReport::listRequest(const CoinGroup& group) {
    FetchRequest request = groupRequest(group);
    const GroupReport& r = of(group);
    request.sortDescriptors = {{r.firstSortKey, group.ascending},
                               {r.secondSortKey, group.ascending}};
    return request;
}

FetchRequest GroupReport::listingRequest(const CoinGroup& group) {
    FetchRequest request = groupRequest(group);
    request.sortDescriptors = {{QStringLiteral("denomination"), group.ascending}};
    return request;
}

std::unique_ptr<QTextDocument> GroupReport::report(const CoinGroup& group,
                                                   const QList<CoinPtr>& coins, qreal pictureWidth,
                                                   const CoinDocument::OriginalOf& originalOf) {
    const GroupReport& r = of(group);
    return CoinDocument::report(CoinDocument::label(r.title.toUtf8().constData()) +
                                    r.titleValue(*coins.first()),
                                coins, pictureWidth, originalOf);
}

std::unique_ptr<QTextDocument> GroupReport::listing(const CoinGroup& group,
                                                    const QList<CoinPtr>& coins, qreal pictureWidth,
                                                    const CoinDocument::OriginalOf& originalOf) {
    const GroupReport& r = of(group);
    return CoinDocument::listing(CoinDocument::label(r.title.toUtf8().constData()) +
                                     r.titleValue(*coins.first()),
                                 coins, r.listingLines, pictureWidth, originalOf);
}
