#include "TestSupport.h"
#include "platform/DesktopServices.h"
#include "platform/core/Files.h"
#include "platform/fakes/Fakes.h"
#include "platform/graphics/ImageCoding.h"

#include <QBuffer>
#include <QColorSpace>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageWriter>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QTemporaryDir>

#include <sys/stat.h>

TEST(ImageCoding, PhotosAreStoredAsSquareJpegs) {
    QImage photo(4000, 3000, QImage::Format_RGB32);
    photo.fill(Qt::darkYellow);
    QPainter(&photo).fillRect(0, 0, 2000, 3000, Qt::blue); // left half blue
    const QByteArray stored = ImageCoding::coinPictureData(photo);
    ASSERT_TRUE(stored.startsWith("\xFF\xD8"));
    const QImage back = ImageCoding::decode(stored);
    EXPECT_EQ(back.size(), QSize(100, 100));
    // Stretched, not cropped: the blue half still fills the left half of the square.
    EXPECT_GT(qBlue(back.pixel(25, 50)), 150);
    EXPECT_LT(qBlue(back.pixel(75, 50)), 100);
    QImage detailed(100, 100, QImage::Format_RGB32);
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            detailed.setPixel(x, y, qRgb((x * 37) % 256, (y * 53) % 256, (x * y) % 256));
    EXPECT_LT(ImageCoding::jpeg(detailed, 0.5).size(), ImageCoding::jpeg(detailed, 0.6).size());
    EXPECT_TRUE(ImageCoding::decode("%PDF-1.4 not a picture").isNull());
}

TEST(ImageCoding, StrictBase64) {
    EXPECT_EQ(ImageCoding::strictBase64Decode("TWFu"), QByteArray("Man"));
    EXPECT_EQ(ImageCoding::strictBase64Decode("TWE="), QByteArray("Ma"));
    EXPECT_EQ(ImageCoding::strictBase64Decode("TQ=="), QByteArray("M"));
    EXPECT_EQ(ImageCoding::strictBase64Decode(""), QByteArray(""));
    // Bits left over in the last character are not looked at.
    EXPECT_EQ(ImageCoding::strictBase64Decode("TWF="), QByteArray("Ma"));
    EXPECT_EQ(ImageCoding::strictBase64Decode("TR=="), QByteArray("M"));
    // A picture's base64 followed by a record number ("TWFu7") is, as a rule, not base64.
    // Refused: a length that is not a multiple of four (padding left out included), padding
    // anywhere but at the end or more than two of it, blanks and line ends anywhere, the URL
    // alphabet, and anything outside the alphabet.
    for (const char* bad :
         {"TWF",      "TW",       "T",      "TWFu7", "TWFu1",  "TQ=",    "TQ===",   "TW=u",
          "TWE=TWFu", "TW==TWFu", "====",   "A===",  "TW\nFu", "TWFu\n", "TWE=\n",  " TWFu",
          "TWFu ",    "TW Fu",    "TW\tFu", "TW-_",  "TWF*",   "TWé=",   "TWFu\r\n"})
        EXPECT_FALSE(ImageCoding::strictBase64Decode(bad).has_value()) << bad;
    EXPECT_EQ(ImageCoding::strictBase64Decode("TW+/"), QByteArray("M\x6f\xbf"));
    EXPECT_TRUE(ImageCoding::strictBase64Decode("1234").has_value());
    EXPECT_EQ(ImageCoding::strictBase64Decode("TWFu1234"), QByteArray("Man\xd7\x6d\xf8"));
    // Qt's own decoder, even when told to stop at errors, takes a text without its padding,
    // and so a picture with a record number after it: the rule above cannot be left to it.
    for (const char* unpadded : {"TWF", "TWFu7"})
        EXPECT_TRUE(
            QByteArray::fromBase64Encoding(unpadded, QByteArray::AbortOnBase64DecodingErrors))
            << unpadded;
    // Whatever the bytes, decoding gives them back.
    QByteArray bytes;
    for (int n = 0; n < 300; ++n) {
        EXPECT_EQ(ImageCoding::strictBase64Decode(bytes.toBase64()), bytes) << n;
        bytes.append(char(n * 37 + 11));
    }
}

TEST_F(PelvaneTest, FilesWriteAtomicallyAndReadAnyUnicode) {
    ASSERT_TRUE(Files::writeTextAtomically(path("a.csv"), "[PELVANE]\nPérou^1 Sol\n").ok());
    EXPECT_EQ(Files::readText(path("a.csv")).value(), "[PELVANE]\nPérou^1 Sol\n");
    const QString sample = "[PELVANE]\r\nZ\u00fcrich";
    writeFile(path("b.csv"),
              QByteArray("\xFF\xFE", 2) +
                  QByteArray(reinterpret_cast<const char*>(sample.utf16()), sample.size() * 2));
    EXPECT_EQ(Files::readText(path("b.csv")).value(), sample);
    const Result<QString> missing = Files::readText(path("missing.csv"));
    ASSERT_FALSE(missing.ok());
    EXPECT_FALSE(missing.error().message.isEmpty());
    EXPECT_EQ(missing.error().doing, "reading " + path("missing.csv"));
    const Result<void> nowhere = Files::writeTextAtomically(path("no/such/dir/x"), "x");
    ASSERT_FALSE(nowhere.ok());
    EXPECT_EQ(nowhere.error().doing, "writing " + path("no/such/dir/x"));
}

TEST(Platform, FakesReplaceTheDesktopAndGoBack) {
    Fakes fakes = Fakes::install();
    fakes.mail->canSend = false;
    EXPECT_FALSE(Platform::mail().canSendMail());
    Platform::browser().openInApp(QUrl("https://example.org"));
    EXPECT_EQ(fakes.browser->inApp.size(), 1);
    Platform::reset();
    EXPECT_TRUE(Platform::messages().canSendText());
}

// The export's quick path must write exactly the bytes of the ordinary decode and encode.
TEST(ImageCoding, QuickReencodingGivesTheOrdinaryBytes) {
    for (int seed = 0; seed < 48; ++seed) {
        QImage img(seed % 3 ? 100 : 37, 100, QImage::Format_RGB32);
        // Resolutions in dots per inch, in dots per centimetre and odd ones travel along.
        if (seed % 4 == 1)
            img.setDotsPerMeterX(2835), img.setDotsPerMeterY(2835); // 72 dpi
        if (seed % 4 == 2)
            img.setDotsPerMeterX(4000), img.setDotsPerMeterY(3000);
        if (seed % 8 == 3)
            img.setText("Description", "struck off-centre"); // a comment marker
        if (seed % 8 == 7)
            img.setColorSpace(QColorSpace::SRgb); // a colour profile
        img.fill(QColor::fromHsv(seed * 9, 150, 220));
        QPainter p(&img);
        p.setPen(QColor::fromHsv(seed * 31 % 360, 220, 80));
        p.drawEllipse(seed % 20, 10, 70, 60 + seed % 30);
        p.drawText(10, 50, QString::number(seed * 1234567));
        p.end();
        QByteArray stored;
        QBuffer buffer(&stored);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpeg");
        writer.setQuality(seed % 2 ? 50 : 93);
        writer.setProgressiveScanWrite(seed % 6 == 5); // as other programs may write them
        ASSERT_TRUE(writer.write(img));
        if (seed % 12 == 6) // no resolution, only an aspect ratio
            stored[13] = 0, stored[15] = 1, stored[17] = 1;
        EXPECT_EQ(ImageCoding::reencodeJpeg(stored, 0.6),
                  ImageCoding::jpeg(ImageCoding::decode(stored), 0.6))
            << seed;
    }
    // Not a colour JPEG, or no picture at all: the ordinary way answers.
    QImage gray(20, 20, QImage::Format_Grayscale8);
    gray.fill(128);
    const QByteArray g = ImageCoding::jpeg(gray, 0.8);
    EXPECT_EQ(ImageCoding::reencodeJpeg(g, 0.6), ImageCoding::jpeg(gray, 0.6));
    EXPECT_TRUE(ImageCoding::reencodeJpeg("\xFF\xD8 broken", 0.6).isEmpty());
    EXPECT_TRUE(ImageCoding::reencodeJpeg("%PDF-1.4", 0.6).isEmpty());
}

// A header may claim any size: beyond a sane one nothing is allocated and nothing decoded.
TEST(ImageCoding, ForgedSizesAreRefusedBeforeDecoding) {
    const QByteArray forged = jpegClaiming(60000, 60000);
    EXPECT_TRUE(ImageCoding::decode(forged).isNull());
    EXPECT_TRUE(ImageCoding::reencodeJpeg(forged, 0.6).isEmpty());
    EXPECT_TRUE(ImageCoding::decode(jpegClaiming(40000, 10)).isNull());
    EXPECT_FALSE(ImageCoding::decode(jpegClaiming(8, 8)).isNull());
    EXPECT_FALSE(ImageCoding::reencodeJpeg(jpegClaiming(8, 8), 0.6).isEmpty());
}

// Mail can be sent only where xdg-email is installed and a program is set up for mailto:
// addresses; the desktop's own tools answer, here stand-ins on the PATH.
TEST(Platform, MailNeedsAMailProgramSetUp) {
    QTemporaryDir bin;
    auto script = [&](const char* name, const QByteArray& body) {
        const QString file = bin.filePath(QString::fromLatin1(name));
        writeFile(file, "#!/bin/sh\n" + body);
        QFile::setPermissions(file, QFile::permissions(file) | QFileDevice::ExeOwner);
    };
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", bin.path().toLocal8Bit());
    DesktopMailComposer mail;
    EXPECT_FALSE(mail.canSendMail()); // no xdg-email at all
    script("xdg-email", "exit 0\n");
    script("xdg-mime", "exit 0\n"); // answers with no program
    EXPECT_FALSE(mail.canSendMail());
    script("xdg-mime", "echo thunderbird.desktop\n");
    EXPECT_TRUE(mail.canSendMail());
    qputenv("PATH", path);
}

// The share sheet's "Save As...": the chosen file is written beside and renamed, so a copy that
// fails leaves it as it was, the file itself may be chosen, and no pipe or device is replaced.
TEST_F(PelvaneTest, SaveAsNeverLosesTheChosenFile) {
    QWidget anchor;
    const QString report = path("CoinListByYear.pdf");
    writeFile(report, "%PDF the report");
    auto saveAs = [&](const QString& source, const QString& target) {
        DesktopShareSheet().present({ShareItem{QUrl::fromLocalFile(source), {}, {}, {}}}, {},
                                    &anchor);
        auto* menu = anchor.findChild<QMenu*>();
        ASSERT_TRUE(menu);
        for (QAction* a : menu->actions())
            if (a->text() == "Save As...")
                a->trigger();
        auto* dialog = anchor.findChild<QFileDialog*>();
        ASSERT_TRUE(dialog);
        emit dialog->fileSelected(target);
        delete dialog;
        delete menu;
    };
    auto warning = [&]() -> QString {
        auto* box = anchor.findChild<QMessageBox*>();
        const QString text = box ? box->text() : QString();
        delete box;
        return text;
    };

    saveAs(report, path("copy.pdf"));
    EXPECT_EQ(readFile(path("copy.pdf")), "%PDF the report");
    saveAs(report, report); // the same file: still there, whole
    EXPECT_EQ(readFile(report), "%PDF the report");
    EXPECT_EQ(warning(), "");

    ASSERT_EQ(::mkfifo(qPrintable(path("fifo")), 0600), 0);
    saveAs(report, path("fifo"));
    EXPECT_EQ(warning(), "Cannot write " + path("fifo") + ": it is not a regular file");
    EXPECT_TRUE(QFileInfo(path("fifo")).exists() && !QFileInfo(path("fifo")).isFile());

    saveAs(path("gone.pdf"), path("copy.pdf")); // the copy fails: the earlier file stays
    EXPECT_TRUE(warning().startsWith("Cannot write " + path("copy.pdf")));
    EXPECT_EQ(readFile(path("copy.pdf")), "%PDF the report");
}

// The import's quick check of a picture answers as the decoder does: for whole pictures, every
// cut of one, bytes changed inside one, and forged sizes.
TEST(ImageCoding, TheQuickCheckAgreesWithTheDecoder) {
    const QByteArray coin = readFile(PELVANE_TEST_DATA "/pictures/coin-picture.jpg");
    ASSERT_FALSE(coin.isEmpty());
    QList<QByteArray> inputs{coin, jpegClaiming(60000, 60000), jpegClaiming(5000, 5000),
                             QByteArray("\xFF\xD8\xFF"), QByteArray("no picture")};
    const QDir kept(PELVANE_TEST_DATA "/pictures"); // every picture that once failed
    for (const QString& name : kept.entryList(QDir::Files))
        inputs << readFile(kept.filePath(name));
    for (qsizetype cut = 1; cut < coin.size(); cut += 7)
        inputs << coin.left(cut);
    for (qsizetype at = 2; at < coin.size(); at += 11) {
        QByteArray changed = coin;
        changed[at] = char(changed[at] ^ 0x5A);
        inputs << changed;
    }
    int readable = 0, plain = 0;
    for (const QByteArray& bytes : inputs) {
        readable += ImageCoding::readable(bytes);
        // What goes into a PDF as it is decodes, at the size it says.
        if (const std::optional<QSize> size = ImageCoding::plainJpegSize(bytes)) {
            ++plain;
            EXPECT_EQ(ImageCoding::decode(bytes).size(), *size);
        }
        EXPECT_EQ(ImageCoding::readable(bytes), !ImageCoding::decode(bytes).isNull())
            << bytes.size() << " bytes: " << bytes.left(16).toHex().toStdString();
    }
    // Both answers were given many times.
    EXPECT_GT(readable, 20);
    EXPECT_GT(inputs.size() - readable, 20);
    EXPECT_GT(plain, 0);
    EXPECT_LT(plain, readable); // a cut picture still decodes, with a warning: not plain
}

// Only a JPEG that any PDF reader draws from its own bytes as the decoder draws it is plain.
TEST(ImageCoding, PlainJpegsAreTheOnesAPdfTakesAsTheyAre) {
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    EXPECT_EQ(ImageCoding::plainJpegSize(encodedImage(image, "jpeg", false)), QSize(40, 30));
    EXPECT_EQ(ImageCoding::plainJpegSize(ImageCoding::coinPictureData(image)), QSize(100, 100));
    // A block right after the start: a colour profile, or Exif that may turn the picture.
    const auto withBlock = [&](char marker, const QByteArray& body) {
        const int length = int(body.size()) + 2;
        return encodedImage(image, "jpeg", false)
            .insert(2,
                    QByteArray("\xFF") + marker + char(length >> 8) + char(length & 0xFF) + body);
    };
    const QByteArray profiled = withBlock('\xE2', QByteArray("ICC_PROFILE\0\x01\x01", 14) +
                                                      QColorSpace(QColorSpace::SRgb).iccProfile());
    EXPECT_FALSE(ImageCoding::plainJpegSize(profiled));
    EXPECT_EQ(ImageCoding::decodedSize(profiled), QSize(40, 30)); // still measured
    EXPECT_FALSE(ImageCoding::plainJpegSize(withBlock('\xE1', QByteArray("Exif\0\0", 6))));
    // Exif that turns the picture a quarter: measured as the decoder gives it.
    const QByteArray turned = withBlock(
        '\xE1',
        QByteArray("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0", 32));
    EXPECT_EQ(ImageCoding::decodedSize(turned), ImageCoding::decode(turned).size());
    EXPECT_FALSE(ImageCoding::plainJpegSize(encodedImage(image, "jpeg", true)));
    EXPECT_FALSE(ImageCoding::plainJpegSize(
        encodedImage(image.convertToFormat(QImage::Format_Grayscale8), "jpeg", false)));
    EXPECT_FALSE(ImageCoding::plainJpegSize(encodedImage(image, "png", false)));
    EXPECT_FALSE(ImageCoding::plainJpegSize(jpegClaiming(60000, 60000)));
}
