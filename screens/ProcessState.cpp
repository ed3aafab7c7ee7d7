#include "screens/ProcessState.h"

#include "model/Records.h"
#include "platform/ImageCoding.h"

QString SelectedCountry;
QString SelectedDenomination;
QString SelectedDescription;
QString SelectedDesigner;
QString SelectedEdge;
QString SelectedGrade;
QString SelectedMintLocation;
QString SelectedMintMark;
QString SelectedNotes;
QString SelectedPeriod;
QString SelectedSerialNumber;
QString SelectedStrikeCharacter;

double SelectedDiameter = 0;
double SelectedThickness = 0;
double SelectedWeight = 0;
float SelectedValue = 0;
float SelectedTotalValue = 0;
qint16 SelectedQuantity = 0;
qint16 SelectedYear = 0;
qint16 SelectedCoinID = 0;

QList<QImage> ZoomImages;
QByteArray ShareFrontImageData;
QByteArray ShareBackImageData;

QString CalledFromList;
bool SortAscending = true;

void resetProcessState() {
    for (QString* s :
         {&SelectedCountry, &SelectedDenomination, &SelectedDescription, &SelectedDesigner,
          &SelectedEdge, &SelectedGrade, &SelectedMintLocation, &SelectedMintMark, &SelectedNotes,
          &SelectedPeriod, &SelectedSerialNumber, &SelectedStrikeCharacter, &CalledFromList})
        s->clear();
    SelectedDiameter = SelectedThickness = SelectedWeight = 0;
    SelectedValue = SelectedTotalValue = 0;
    SelectedQuantity = SelectedYear = SelectedCoinID = 0;
    ZoomImages.clear();
    ShareFrontImageData.clear();
    ShareBackImageData.clear();
    SortAscending = true;
}

void copyToCurrentCoin(const Coins& coin) {
    SelectedCountry = coin.country();
    SelectedDenomination = coin.denomination();
    SelectedDescription = coin.descrip();
    SelectedDesigner = coin.designer();
    SelectedEdge = coin.edge();
    SelectedGrade = coin.gradeNumber();
    SelectedMintLocation = coin.mintLocation();
    SelectedMintMark = coin.mintMark();
    SelectedNotes = coin.notes();
    SelectedPeriod = coin.period();
    SelectedSerialNumber = coin.serialNumber();
    SelectedStrikeCharacter = coin.strikeCharacter();
    SelectedDiameter = coin.diameter();
    SelectedThickness = coin.thickness();
    SelectedWeight = coin.weight();
    SelectedValue = coin.value();
    SelectedQuantity = coin.quantity();
    SelectedYear = coin.year();
    ShareFrontImageData = coin.frontImage();
    ShareBackImageData = coin.backImage();
    ZoomImages.clear();
    if (coin.hasValue(Coins::Attr::frontImage))
        ZoomImages.append(ImageCoding::decode(coin.frontImage()));
    if (coin.hasValue(Coins::Attr::backImage))
        ZoomImages.append(ImageCoding::decode(coin.backImage()));
}
