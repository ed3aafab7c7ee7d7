#pragma once
// The page renderer's inline pictures: sized once, decoded ahead of the pages on other threads,
// drawn from the originals they were made from where there are some, and passed into a PDF as
// the JPEGs they are.
#include "platform/graphics/PageRenderer.h"

#include <QAbstractTextDocumentLayout>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QTextFormat>
#include <QTextObjectInterface>

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <tuple>
#include <vector>

// The document's inline pictures, drawn by Qt's own handler, which decodes a picture every
// time it is asked for its size: once as the text is laid out, again as each line is shaped to
// be drawn. A picture's size on the page follows from the size its format asks for alone (a
// picture that does not decode is drawn as a placeholder of that size), so it is asked once
// per size and device and remembered; only the drawing decodes.
class PageRenderer::Pictures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)
public:
    explicit Pictures(QTextDocument& document);
    ~Pictures() override;

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    // Drawn as Qt's handler draws it, with the picture decoded ahead where it was. A plain JPEG
    // going into a PDF is drawn as a stand-in, swapped for the JPEG's own bytes once the PDF is
    // whole: the PDF engine would otherwise decode it and code it again as another JPEG.
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
                    const QTextFormat& format) override;

    // Starts decoding the document's pictures given as bytes, in the order they are drawn, on
    // another core: a page then finds its pictures ready. A few are held at a time. With
    // `intoPdf`, a plain JPEG is only checked: its own bytes go into the PDF. The originals
    // are made ready on every core, each once however often it is drawn.
    void decodeAhead(QTextDocument& document, bool intoPdf);
    void stopDecoding();

    // Swaps every stand-in in `pdf` for its JPEG; false, with `pdf` as it was, when the PDF does
    // not hold exactly one stand-in for each.
    bool putJpegsIn(QByteArray& pdf) const;

private:
    static constexpr std::size_t kAhead = 32, kBehind = 4, kMostMakers = 8;
    // A quality at which a photo's JPEG on paper shows nothing of its coding.
    static constexpr double kOriginalQuality = 0.85;
    // One original at one size on paper, made once.
    struct Original {
        PageOriginal source;
        QSize pixels;   // asked for
        QByteArray key; // tells its stand-in apart from the pictures' own bytes
        bool made = false;
        QByteArray jpeg; // empty when the original cannot be drawn
        QSize plainSize; // the JPEG's, when it goes into a PDF as it is
    };
    struct Before {
        bool operator()(const std::pair<QString, QSize>& a,
                        const std::pair<QString, QSize>& b) const {
            return std::tuple(a.first, a.second.width(), a.second.height()) <
                   std::tuple(b.first, b.second.width(), b.second.height());
        }
    };
    struct Planned {
        int position;
        QByteArray bytes;
        std::shared_ptr<Original> original;
    };
    struct Ready {
        QImage image;
        QByteArray bytes;
        QByteArray key;  // tells stand-ins apart: the bytes, or the original's
        QSize plainSize; // valid for a JPEG that goes into the PDF as it is
        QSizeF shape;    // an original's size, drawn fitted to the picture's box
    };
    struct Passed {
        QImage standIn;
        QByteArray bytes;
        QSize size;
    };

    // One stand-in per distinct picture, so that the engine writes each picture once however
    // often it is drawn; the engine tells images apart by their cache key.
    const QImage& standInFor(const QByteArray& key, const QByteArray& bytes, QSize size);
    // The original the picture at `position` is drawn from, shared by every picture that shows
    // it at the same size; none where the format names none.
    std::shared_ptr<Original>
    originalOf(QTextDocument& document, int position, const QTextImageFormat& format,
               std::map<std::pair<QString, QSize>, std::shared_ptr<Original>, Before>& known);
    // Reads, checks and scales the originals in the order they are first drawn, on as many
    // threads as there are cores. One that cannot be read is said once on the console and its
    // picture is drawn instead.
    void makeOriginals();
    static void make(Original& original, bool intoPdf);
    void decodeAll();
    // The picture at `position`, decoded or checked ahead, or nothing.
    Ready decoded(int position);

    using Key = std::tuple<qreal, qreal, const QPaintDevice*, bool>;
    QAbstractTextDocumentLayout* m_layout;
    QTextObjectInterface* m_qt;
    QObject* m_qtObject;
    std::map<Key, QSizeF> m_sizes;

    std::vector<Planned> m_plan; // by position
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::size_t, Ready> m_ready;
    std::size_t m_made = 0, m_drawn = 0;
    bool m_stop = false;
    bool m_intoPdf = false;
    bool m_threaded = false;
    std::thread m_decoding;
    // The originals in the order they are first drawn, and the next one to make.
    std::vector<std::shared_ptr<Original>> m_originals;
    std::size_t m_nextOriginal = 0;
    std::vector<std::thread> m_makers;
    // The JPEGs that go into the PDF as they are, in the order their stand-ins were first drawn.
    std::vector<Passed> m_passed;
    QHash<QByteArray, std::size_t> m_standIns;
};
