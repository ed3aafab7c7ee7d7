#include "screens/ProcessState.h"

#include "model/Records.h"
#include "platform/graphics/ImageCoding.h"

QString SelectedCountry = QStringLiteral("");
QString SelectedDenomination = QStringLiteral("");
QString SelectedEdge = QStringLiteral("");
QString SelectedGrade = QStringLiteral("");
QString SelectedMintMark = QStringLiteral("");
QString SelectedNotes = QStringLiteral("");
QString SelectedSerialNumber = QStringLiteral("");
QString SelectedStrikeCharacter = QStringLiteral("");

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
    SelectedEdge = text(coin.edge());
    SelectedGrade = text(coin.gradeNumber());
    SelectedMintMark = text(coin.mintMark());
    SelectedNotes = text(coin.notes());
    SelectedSerialNumber = text(coin.serialNumber());
    SelectedStrikeCharacter = text(coin.strikeCharacter());
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
         {&SelectedCountry, &SelectedDenomination, &SelectedEdge, &SelectedGrade, &SelectedMintMark,
          &SelectedNotes, &SelectedSerialNumber, &SelectedStrikeCharacter, &CalledFromList})
        *s = QStringLiteral("");
    SelectedYear = SelectedCoinID = 0;
    ZoomImages.clear();
    ShareFrontImageData.clear();
    ShareBackImageData.clear();
    SortAscending = true;
}
