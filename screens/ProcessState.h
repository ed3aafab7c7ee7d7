#pragma once
// Process-wide state shared by the screens: the current coin (copied from the coin tapped last on
// a coin list), the origin marker and the group screens' sort direction.
#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>

class Coins;

// The current coin's texts that other screens read. They are texts, never absent: an absent
// attribute is copied as "", which a predicate matches only with a stored "".
extern QString SelectedCountry;
extern QString SelectedDenomination;
extern QString SelectedEdge;
extern QString SelectedGrade;
extern QString SelectedMintMark;
extern QString SelectedNotes;
extern QString SelectedSerialNumber;
extern QString SelectedStrikeCharacter;

// Its year, which the edit and notes screens look coins up by.
extern qint16 SelectedYear;
// The id the edit screen saves to; written by the main list only.
extern qint16 SelectedCoinID;

// The current coin's pictures: decoded (front then back, each only if present) and as bytes.
extern QList<QImage> ZoomImages;
extern QByteArray ShareFrontImageData;
extern QByteArray ShareBackImageData;

// Names the screen the user came from: "MAINMENU", "MAINCOINLIST", "DenominationBreakdown",
// "CountryBreakdown", "YearBreakdown" or "Master".
extern QString CalledFromList;
// Written by the group screens' sort buttons, read by the print screen.
extern bool SortAscending;

// The coin opened from a coin list, with its decoded pictures (not SelectedCoinID, which the
// main list alone writes).
void copyIntoCurrentCoin(const Coins& coin);

// Back to the values at process start.
void resetProcessState();
