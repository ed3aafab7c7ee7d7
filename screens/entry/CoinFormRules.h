#pragma once
// How the add and edit forms turn their texts into a coin, and a coin into texts. The two
// screens differ on purpose (required fields, trimming of picked values, bad numbers), so each
// has its own rule set here, next to each other.
#include "model/Records.h"

#include <QByteArray>
#include <QString>
#include <optional>

struct CoinFormTexts {
    QString denomination, year, quantity, descrip, country, diameter, weight, thickness, edge,
        value, strikeCharacter, gradeNumber, mintMark, mintLocation, serialNumber, period, designer,
        notes;
    // Encoded pictures of the two image views; absent when a view shows no picture.
    std::optional<QByteArray> frontImage, backImage;
};

namespace CoinFormRules {
// Spaces and tabs off both ends; line breaks stay.
QString trimmed(const QString& text);
// True when the add form may save: denomination and year are both filled in.
bool hasRequiredFields(const CoinFormTexts& texts);
// Writes a new coin from the add form. Empty optional fields are skipped, the mint mark
// defaults to "None", picked values are stored untrimmed, notes are not stored. A number that
// does not parse is a fatal error.
void applyAddForm(Coins& coin, const CoinFormTexts& texts, qint16 coinID);
// Rewrites a coin from the edit form. An empty or bad year or quantity is a fatal error; an
// empty decimal stores 0 and a bad one clears the attribute; everything is trimmed.
void applyEditForm(Coins& coin, const CoinFormTexts& texts);
// The texts the edit form shows for a coin (pictures are left to the screen).
CoinFormTexts textsFor(const Coins& coin);
} // namespace CoinFormRules
