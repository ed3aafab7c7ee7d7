// Writes samples/Pelvane-sample.csv: a small real-world collection with pictures drawn here,
// for a new user to import. Usage: make_sample OUTPUT.csv
#include "exchange/ExchangeWriter.h"
#include "model/ManagedObjectContext.h"
#include "model/PersistentContainer.h"
#include "model/Records.h"
#include "platform/graphics/ImageCoding.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QRadialGradient>
#include <QTemporaryDir>

namespace {

struct Sample {
    const char *country, *denomination, *mint, *grade, *strike, *edge, *designer, *period;
    int year, quantity;
    float value;
    double diameter, weight;
    const char* metal; // "copper", "silver", "gold", "nickel"
};

const Sample kCoins[] = {
    {"United States", "1 Cent Lincoln Wheat", "S", "VF-20", "BN", "Plain", "Victor D. Brenner",
     "Wheat Reverse", 1909, 1, 850, 19.05, 3.11, "copper"},
    {"United States", "1 Cent Lincoln Wheat", "D", "XF-40", "BN", "Plain", "Victor D. Brenner",
     "Wheat Reverse", 1914, 1, 240, 19.05, 3.11, "copper"},
    {"United States", "1 Cent Lincoln Wheat", "P", "MS/PF-63", "RB", "Plain", "Victor D. Brenner",
     "Wheat Reverse", 1943, 3, 0.5f, 19.05, 2.70, "nickel"},
    {"United States", "1 Cent Lincoln Memorial", "D", "MS/PF-65", "RD", "Plain", "Frank Gasparro",
     "Memorial Reverse", 1972, 10, 0.35f, 19.05, 3.11, "copper"},
    {"United States", "5 Cents Buffalo", "P", "F-12", "", "Plain", "James Earle Fraser", "Buffalo",
     1937, 2, 4.5f, 21.21, 5.0, "nickel"},
    {"United States", "5 Cents Jefferson", "S", "MS/PF-64", "5FS", "Plain", "Felix Schlag",
     "War Nickel", 1943, 1, 6, 21.21, 5.0, "silver"},
    {"United States", "10 Cents Mercury", "D", "AU-55", "FB", "Reeded", "Adolph A. Weinman",
     "Mercury", 1942, 2, 9.5f, 17.91, 2.5, "silver"},
    {"United States", "10 Cents Roosevelt", "P", "MS/PF-65", "FT", "Reeded", "John R. Sinnock",
     "Silver", 1964, 5, 4.25f, 17.91, 2.5, "silver"},
    {"United States", "25 Cents Washington", "D", "MS/PF-63", "", "Reeded", "John Flanagan",
     "Silver", 1950, 1, 12, 24.26, 6.25, "silver"},
    {"United States", "25 Cents Washington", "S", "AU-50", "", "Reeded", "John Flanagan", "Silver",
     1932, 1, 210, 24.26, 6.25, "silver"},
    {"United States", "50 Cents Walking Liberty", "P", "XF-45", "", "Reeded", "Adolph A. Weinman",
     "Walking Liberty", 1943, 1, 22, 30.63, 12.5, "silver"},
    {"United States", "50 Cents Kennedy", "D", "MS/PF-64", "", "Reeded", "Gilroy Roberts", "Silver",
     1964, 4, 11, 30.61, 12.5, "silver"},
    {"United States", "1 Dollar Morgan", "CC", "MS/PF-63", "DPL", "Reeded", "George T. Morgan",
     "Morgan", 1884, 1, 385, 38.1, 26.73, "silver"},
    {"United States", "1 Dollar Morgan", "O", "AU-58", "", "Reeded", "George T. Morgan", "Morgan",
     1899, 1, 62, 38.1, 26.73, "silver"},
    {"United States", "1 Dollar Peace", "P", "MS/PF-62", "", "Reeded", "Anthony de Francisci",
     "Peace", 1922, 2, 38, 38.1, 26.73, "silver"},
    {"United States", "1 Dollar American Silver Eagle", "W", "MS/PF-69", "", "Reeded",
     "Adolph A. Weinman", "Bullion", 2021, 3, 45, 40.6, 31.1, "silver"},
    {"Canada", "1 Cent", "", "MS/PF-64", "RD", "Plain", "G. E. Kruger Gray", "Maple Twig", 1965, 20,
     0.25f, 19.05, 3.24, "copper"},
    {"Canada", "5 Cents", "", "MS/PF-63", "", "Plain", "G. E. Kruger Gray", "Beaver", 1951, 2,
     1.75f, 21.2, 4.54, "nickel"},
    {"Canada", "25 Cents", "", "AU-55", "", "Reeded", "Emanuel Hahn", "Caribou", 1967, 3, 5.5f,
     23.88, 5.83, "silver"},
    {"Canada", "1 Dollar", "", "MS/PF-65", "", "Plain", "Robert-Ralph Carmichael", "Loonie", 1987,
     1, 3, 26.5, 7.0, "gold"},
    {"Mexico", "1 Peso", "Mo", "XF-40", "", "Reeded", "", "Caballito", 1910, 1, 95, 39, 27.07,
     "silver"},
    {"Mexico", "50 Pesos", "Mo", "MS/PF-64", "", "Reeded", "", "Centenario", 1947, 1, 2950, 37,
     41.67, "gold"},
    {"United Kingdom", "1 Penny", "", "VF-30", "BN", "Plain", "Leonard Charles Wyon", "Victoria",
     1897, 4, 3.5f, 30.8, 9.45, "copper"},
    {"United Kingdom", "1 Sovereign", "", "AU-58", "", "Milled", "Benedetto Pistrucci", "George V",
     1913, 1, 610, 22.05, 7.99, "gold"},
    {"United Kingdom", "50 Pence", "", "MS/PF-65", "", "Plain", "Christopher Ironside", "Decimal",
     1969, 2, 1.5f, 30, 13.5, "nickel"},
    {"France", "5 Francs", "A", "XF-45", "", "Milled", "Oscar Roty", "Semeuse", 1960, 1, 14, 29, 12,
     "silver"},
    {"France", "20 Francs", "A", "AU-55", "", "Reeded", "Jules-Clément Chaplain", "Coq", 1910, 1,
     520, 21, 6.45, "gold"},
    {"Germany", "5 Mark", "J", "VF-25", "", "Reeded", "Josef Bernhart", "Weimar", 1927, 1, 48, 36,
     25, "silver"},
    {"Germany", "2 Euro", "F", "MS/PF-65", "", "Grooved", "Heinz Hoyer", "Euro", 2002, 6, 2, 25.75,
     8.5, "nickel"},
    {"Ireland", "1 Penny", "", "XF-40", "BN", "Plain", "Percy Metcalfe", "Free State", 1928, 2, 6,
     30.9, 9.45, "copper"},
    {"Italy", "500 Lire", "R", "MS/PF-63", "", "Reeded", "Guido Veroi", "Republic", 1958, 1, 22, 29,
     11, "silver"},
    {"Spain", "1 Peseta", "", "VF-20", "", "Reeded", "", "Alfonso XIII", 1900, 3, 9, 23, 5,
     "silver"},
    {"Switzerland", "20 Francs", "B", "MS/PF-64", "", "Reeded", "Fritz Landry", "Helvetia", 1935, 1,
     495, 21, 6.45, "gold"},
    {"Peru", "1 Sol", "", "XF-45", "", "Reeded", "", "Republic", 1935, 2, 28, 37, 25, "silver"},
    {"Chile", "1 Peso", "So", "VF-35", "", "Reeded", "", "Condor", 1933, 1, 7, 25, 5, "silver"},
    {"Japan", "100 Yen", "", "MS/PF-63", "", "Reeded", "", "Showa", 1964, 2, 8, 22.6, 4.8,
     "silver"},
    {"India", "1 Rupee", "B", "AU-50", "", "Milled", "", "George V", 1917, 1, 18, 30.6, 11.66,
     "silver"},
    {"Australia", "1 Penny", "M", "F-15", "BN", "Plain", "Kruger Gray", "Kangaroo", 1938, 5, 1.25f,
     30.8, 9.45, "copper"},
    {"Australia", "50 Cents", "", "MS/PF-65", "", "Plain", "Stuart Devlin", "Round", 1966, 1, 12,
     31.5, 13.28, "silver"},
    {"South Africa", "1 Krugerrand", "", "MS/PF-66", "", "Reeded", "Coert Steynberg", "Bullion",
     1974, 1, 2100, 32.77, 33.93, "gold"},
};

QImage drawCoin(const Sample& s, bool front) {
    QImage img(100, 100, QImage::Format_ARGB32_Premultiplied);
    img.fill(QColor(245, 245, 240));
    QColor light(230, 230, 235), dark(140, 140, 150);
    if (qstrcmp(s.metal, "copper") == 0)
        light = QColor(232, 160, 110), dark = QColor(140, 70, 35);
    else if (qstrcmp(s.metal, "gold") == 0)
        light = QColor(250, 225, 120), dark = QColor(170, 125, 20);
    else if (qstrcmp(s.metal, "nickel") == 0)
        light = QColor(215, 215, 205), dark = QColor(120, 120, 110);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient g(QPointF(38, 35), 60);
    g.setColorAt(0, light);
    g.setColorAt(1, dark);
    p.setBrush(g);
    p.setPen(QPen(dark.darker(130), 2));
    p.drawEllipse(QRectF(5, 5, 90, 90));
    p.setPen(QPen(dark.darker(150), 1));
    p.drawEllipse(QRectF(12, 12, 76, 76));
    QFont f(QStringLiteral("Liberation Sans"));
    f.setBold(true);
    f.setPixelSize(front ? 22 : 12);
    p.setFont(f);
    p.setPen(dark.darker(200));
    const QString text =
        front ? QString::number(s.year) : QString::fromUtf8(s.denomination).section(u' ', 0, 1);
    p.drawText(QRectF(10, 30, 80, 40), Qt::AlignCenter | Qt::TextWordWrap, text);
    return img;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc < 2)
        return 2;
    QTemporaryDir dir;
    PersistentContainer::setDefaultDirectory(dir.path());
    PersistentContainer container(QStringLiteral("Pelvane"));
    container.loadPersistentStores({});
    ManagedObjectContext& ctx = *container.viewContext();
    for (const Sample& s : kCoins) {
        auto c = ctx.insert<Coins>();
        c->setCountry(QString::fromUtf8(s.country));
        c->setDenomination(QString::fromUtf8(s.denomination));
        c->setMintMark(*s.mint ? QString::fromUtf8(s.mint) : QStringLiteral("None"));
        c->setGradeNumber(QString::fromUtf8(s.grade));
        if (*s.strike)
            c->setStrikeCharacter(QString::fromUtf8(s.strike));
        c->setEdge(QString::fromUtf8(s.edge));
        if (*s.designer)
            c->setDesigner(QString::fromUtf8(s.designer));
        c->setPeriod(QString::fromUtf8(s.period));
        c->setYear(qint16(s.year));
        c->setQuantity(qint16(s.quantity));
        c->setValue(s.value);
        c->setTotalValue(s.value * float(s.quantity));
        c->setDiameter(s.diameter);
        c->setWeight(s.weight);
        c->setNotes(QStringLiteral("Sample coin; replace with your own notes."));
        c->setFrontImage(ImageCoding::coinPictureData(drawCoin(s, true)));
        c->setBackImage(ImageCoding::coinPictureData(drawCoin(s, false)));
    }
    if (!ctx.save().ok())
        return 1;
    QFile out(QString::fromLocal8Bit(argv[1]));
    if (!out.open(QIODevice::WriteOnly))
        return 1;
    out.write(Exchange::exchangeText(ctx).value());
    return 0;
}
