#pragma once
// What the report and the print listing of each kind of group hold, side by side in
// GroupReport.cpp: the fetch, the title, the PDF's file name and the lines of each coin. The
// breakdown screens, the print screen and the command line all go through it.
#include "model/Predicate.h"
#include "model/Records.h"
#include "reports/CoinDocument.h"
#include "reports/CoinGroup.h"

#include <memory>

class QTextDocument;

struct GroupReport {
    GroupKind kind;
    QString name;      // the kind as the command line names it: "denomination", "country", "year"
    QString predicate; // the fetch's predicate format, with the group's value
    QString firstSortKey, secondSortKey; // the breakdown list's order
    // The title of the report and of the print listing: this text and the first coin's value.
    QString title;
    QString (*titleValue)(const Coins&);
    QString pdfFileName; // in the documents folder
    // The lines of a coin in the print listing, before its summary line.
    void (*listingLines)(CoinDocument&, const Coins&);

    static const GroupReport& of(GroupKind kind);
    static const GroupReport& of(const CoinGroup& group) { return of(group.kind); }
    // The kind the command line names; none for another name.
    static const GroupReport* named(const QString& name);

    // The group's coins in the breakdown list's order: by both sort keys, in the group's
    // direction.
    static FetchRequest listRequest(const CoinGroup& group);
    // The print listing's coins: by denomination alone, in the group's direction.
    static FetchRequest listingRequest(const CoinGroup& group);
    // The PDF report of `coins`, titled after the first; pictures `pictureWidth` points wide,
    // drawn from their originals where `originalOf` names one.
    static std::unique_ptr<QTextDocument> report(const CoinGroup& group,
                                                 const QList<CoinPtr>& coins, qreal pictureWidth,
                                                 const CoinDocument::OriginalOf& originalOf = {});
    // The print listing of `coins`, shown on a screen; pictures `pictureWidth` pixels wide, and
    // printed from their originals where `originalOf` names one.
    static std::unique_ptr<QTextDocument> listing(const CoinGroup& group,
                                                  const QList<CoinPtr>& coins, qreal pictureWidth,
                                                  const CoinDocument::OriginalOf& originalOf = {});
};
