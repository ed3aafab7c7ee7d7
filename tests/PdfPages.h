#pragma once
// Reading PDF files back: their pages and the text on them.
#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QPdfDocument>
#include <QStringList>

#include <algorithm>
#include <memory>

class PdfPages {
    // A document read from memory reads its bytes as long as it lives.
    QByteArray bytes_;
    QBuffer buffer_;

public:
    std::unique_ptr<QPdfDocument> pdf = std::make_unique<QPdfDocument>();
    QStringList texts; // one per page, blanks collapsed

    explicit PdfPages(const QString& path) {
        if (pdf->load(path) == QPdfDocument::Error::None)
            readTexts();
    }
    explicit PdfPages(const QByteArray& bytes)
        : bytes_(bytes) {
        buffer_.setBuffer(&bytes_);
        buffer_.open(QIODevice::ReadOnly);
        pdf->load(&buffer_);
        if (pdf->status() == QPdfDocument::Status::Ready)
            readTexts();
    }
    int count() const { return int(texts.size()); }
    QString all() const { return texts.join(QLatin1Char(' ')); }
    QSizeF size(int page) const { return pdf->pagePointSize(page); }
    bool isA4(int page) const {
        return qAbs(size(page).width() - 595.2) < 0.01 && qAbs(size(page).height() - 841.8) < 0.01;
    }
    // True when every text of `wanted` appears, in this order.
    bool inOrder(const QStringList& wanted) const { return inOrder(all(), wanted); }
    static bool inOrder(const QString& text, const QStringList& wanted) {
        qsizetype at = 0;
        for (const QString& w : wanted) {
            const qsizetype found = text.indexOf(w, at);
            if (found < 0)
                return false;
            at = found + w.size();
        }
        return true;
    }

    // Whether every object in use starts where the cross-reference table says, and the table
    // where the end of the file says: a reader that trusts the table finds everything.
    static bool crossReferencesHold(const QByteArray& pdf) {
        const qsizetype start = pdf.lastIndexOf("startxref\n");
        if (start < 0)
            return false;
        const qsizetype table = pdf.mid(start + 10, 20).split('\n').value(0).trimmed().toLongLong();
        if (!pdf.mid(table).startsWith("xref\n0 "))
            return false;
        const qsizetype countEnd = pdf.indexOf('\n', table + 7);
        const int count = pdf.mid(table + 7, countEnd - table - 7).trimmed().toInt();
        for (int object = 1; object < count; ++object) {
            const QByteArray entry = pdf.mid(countEnd + 1 + qsizetype(object) * 20, 20);
            if (entry.size() != 20)
                return false;
            if (entry[17] == 'n' && !pdf.mid(entry.left(10).toLongLong())
                                         .startsWith(QByteArray::number(object) + " 0 obj"))
                return false;
        }
        return count > 1;
    }

private:
    void readTexts() {
        for (int page = 0; page < pdf->pageCount(); ++page)
            texts << pdf->getAllText(page).text().simplified();
    }
};

// The widest run of red pixels on a row: the width the red coin picture is drawn at.
inline int redWidth(const QImage& image) {
    int widest = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0, run = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            run = c.red() > 180 && c.green() < 90 && c.blue() < 90 ? run + 1 : 0;
            widest = std::max(widest, run);
        }
    return widest;
}
