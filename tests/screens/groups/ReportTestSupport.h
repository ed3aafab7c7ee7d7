#pragma once
// Reading the reports back: the pages of a PDF file and the text on them.
#include <QFile>
#include <QPdfDocument>
#include <QStringList>

#include <memory>

struct PdfPages {
    std::unique_ptr<QPdfDocument> pdf = std::make_unique<QPdfDocument>();
    QStringList texts; // one per page, blanks collapsed

    explicit PdfPages(const QString& path) {
        if (pdf->load(path) != QPdfDocument::Error::None)
            return;
        for (int page = 0; page < pdf->pageCount(); ++page)
            texts << pdf->getAllText(page).text().simplified();
    }
    int count() const { return int(texts.size()); }
    QString all() const { return texts.join(QLatin1Char(' ')); }
    QSizeF size(int page) const { return pdf->pagePointSize(page); }
    // True when every text of `wanted` appears, in this order.
    bool inOrder(const QStringList& wanted) const {
        const QString text = all();
        qsizetype at = 0;
        for (const QString& w : wanted) {
            const qsizetype found = text.indexOf(w, at);
            if (found < 0)
                return false;
            at = found + w.size();
        }
        return true;
    }
};
