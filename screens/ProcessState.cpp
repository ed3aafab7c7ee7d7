#include "screens/ProcessState.h"

#include "model/Records.h"
#include "platform/graphics/ImageCoding.h"

QString SelectedCountry = QStringLiteral("");
QString SelectedDenomination = QStringLiteral("");
QString SelectedDescription = QStringLiteral("");
QString SelectedDesigner = QStringLiteral("");
QString SelectedEdge = QStringLiteral("");
QString SelectedGrade = QStringLiteral("");
QString SelectedMintLocation = QStringLiteral("");
QString SelectedMintMark = QStringLiteral("");
QString SelectedNotes = QStringLiteral("");
QString SelectedPeriod = QStringLiteral("");
QString SelectedSerialNumber = QStringLiteral("");
QString SelectedStrikeCharacter = QStringLiteral("");

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

namespace {
QString text(const QString& value) {
    return value.isNull() ? QStringLiteral("") : value;
}
} // namespace

void copyIntoCurrentCoin(const Coins& coin) {
    SelectedCountry = text(coin.country());
    SelectedDenomination = text(coin.denomination());
    SelectedDescription = text(coin.descrip());
    SelectedDesigner = text(coin.designer());
    SelectedEdge = text(coin.edge());
    SelectedGrade = text(coin.gradeNumber());
    SelectedMintLocation = text(coin.mintLocation());
    SelectedMintMark = text(coin.mintMark());
    SelectedNotes = text(coin.notes());
    SelectedPeriod = text(coin.period());
    SelectedSerialNumber = text(coin.serialNumber());
    SelectedStrikeCharacter = text(coin.strikeCharacter());
    SelectedDiameter = coin.diameter();
    SelectedThickness = coin.thickness();
    SelectedWeight = coin.weight();
    SelectedValue = coin.value();
    SelectedTotalValue = coin.totalValue();
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

void resetProcessState() {
    for (QString* s :
         {&SelectedCountry, &SelectedDenomination, &SelectedDescription, &SelectedDesigner,
          &SelectedEdge, &SelectedGrade, &SelectedMintLocation, &SelectedMintMark, &SelectedNotes,
          &SelectedPeriod, &SelectedSerialNumber, &SelectedStrikeCharacter, &CalledFromList})
        *s = QStringLiteral("");
    SelectedDiameter = SelectedThickness = SelectedWeight = 0;
    SelectedValue = SelectedTotalValue = 0;
    SelectedQuantity = SelectedYear = SelectedCoinID = 0;
    ZoomImages.clear();
    ShareFrontImageData.clear();
    ShareBackImageData.clear();
    SortAscending = true;
}
