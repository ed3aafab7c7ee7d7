#pragma once
// Process-wide state shared by the screens: the current coin (copied from the coin tapped last on
// a coin list), the origin marker and the group screens' sort direction.
#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>

// One text variable per text attribute of the current coin.
extern QString SelectedCountry;
extern QString SelectedDenomination;
extern QString SelectedDescription;
extern QString SelectedDesigner;
extern QString SelectedEdge;
extern QString SelectedGrade;
extern QString SelectedMintLocation;
extern QString SelectedMintMark;
extern QString SelectedNotes;
extern QString SelectedPeriod;
extern QString SelectedSerialNumber;
extern QString SelectedStrikeCharacter;

// One number variable per number attribute.
extern double SelectedDiameter;
extern double SelectedThickness;
extern double SelectedWeight;
extern float SelectedValue;
extern float SelectedTotalValue;
extern qint16 SelectedQuantity;
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

// Back to the values at process start.
void resetProcessState();

class Coins;
// Every field of a coin into the current-coin variables (not its id or total value), with its
// pictures decoded for the zoom screen and kept as bytes for sharing.
void copyToCurrentCoin(const Coins& coin);
