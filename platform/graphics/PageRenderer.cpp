#include "platform/graphics/PageRenderer.h"

#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/graphics/LongRuns.h"
#include "platform/graphics/PdfStandIns.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QCoreApplication>
#include <QHash>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextObjectInterface>
#include <QThread>

#include <QPixmap>
#include <QScopeGuard>

#include <algorithm>
#include <cmath>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>
#include <tuple>
#include <vector>

// A PDF device in points: the layout measures fonts against it, so a page holds the same
// lines whatever screen the program runs on.
struct PageRenderer::PointDevice {
    QBuffer buffer;
    QPdfWriter writer{&buffer};

    explicit PointDevice(const QRectF& paper) {
        buffer.open(QIODevice::WriteOnly);
        writer.setResolution(72);
        writer.setPageSize(
            QPageSize(paper.size(), QPageSize::Point, QString(), QPageSize::ExactMatch));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setCreator(QStringLiteral("Pelvane"));
    }
};

// The document's inline pictures, drawn by Qt's own handler, which decodes a picture every
// time it is asked for its size: once as the text is laid out, again as each line is shaped to
// be drawn. A picture's size on the page follows from the size its format asks for alone (a
// picture that does not decode is drawn as a placeholder of that size), so it is asked once
// per size and device and remembered; only the drawing decodes.
class PageRenderer::Pictures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)
public:
    explicit Pictures(QTextDocument& document)
        : m_layout(document.documentLayout())
        , m_qt(m_layout->handlerForObject(QTextFormat::ImageObject))
        , m_qtObject(dynamic_cast<QObject*>(m_qt)) {
        if (m_qt && m_qtObject)
            m_layout->registerHandler(QTextFormat::ImageObject, this);
    }
    ~Pictures() override {
        stopDecoding();
        if (m_qt && m_qtObject)
            m_layout->registerHandler(QTextFormat::ImageObject, m_qtObject);
    }

    QSizeF intrinsicSize(QTextDocument* document, int position,
                         const QTextFormat& format) override {
        const QTextImageFormat image = format.toImageFormat();
        if (!image.hasProperty(QTextFormat::ImageWidth) ||
            !image.hasProperty(QTextFormat::ImageHeight))
            return m_qt->intrinsicSize(document, position, format);
        // Qt sizes a picture one way on the application's thread and another elsewhere.
        const Key key{image.width(), image.height(), m_layout->paintDevice(),
                      QThread::currentThread() == qApp->thread()};
        auto found = m_sizes.find(key);
        if (found == m_sizes.end())
            found = m_sizes.emplace(key, m_qt->intrinsicSize(document, position, format)).first;
        return found->second;
    }
    // Drawn as Qt's handler draws it, with the picture decoded ahead where it was. A plain JPEG
    // going into a PDF is drawn as a stand-in, swapped for the JPEG's own bytes once the PDF is
    // whole: the PDF engine would otherwise decode it and code it again as another JPEG.
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
                    const QTextFormat& format) override {
        const Ready ready = decoded(position);
        const QImage& image = ready.image;
        // An original keeps its own shape, centred in the box its picture fills.
        QRectF target = rect;
        if (!ready.shape.isEmpty()) {
            const QSizeF fitted = ready.shape.scaled(rect.size(), Qt::KeepAspectRatio);
            target = QRectF(rect.center() - QPointF(fitted.width(), fitted.height()) / 2, fitted);
        }
        if (ready.plainSize.isValid()) {
            const QImage& standIn = standInFor(ready.key, ready.bytes, ready.plainSize);
            painter->drawImage(target, standIn, standIn.rect());
        } else if (image.isNull()) {
            m_qt->drawObject(painter, rect, document, position, format);
        } else if (QThread::currentThread() == qApp->thread()) {
            const QPixmap pixmap = QPixmap::fromImage(image);
            painter->drawPixmap(target, pixmap, pixmap.rect());
        } else {
            painter->drawImage(target, image, image.rect());
        }
    }

    // Starts decoding the document's pictures given as bytes, in the order they are drawn, on
    // another core: a page then finds its pictures ready. A few are held at a time. With
    // `intoPdf`, a plain JPEG is only checked: its own bytes go into the PDF. The originals
    // are made ready on every core, each once however often it is drawn.
    void decodeAhead(QTextDocument& document, bool intoPdf) {
        stopDecoding();
        m_plan.clear();
        m_ready.clear();
        m_passed.clear();
        m_standIns.clear();
        m_originals.clear();
        m_made = m_drawn = m_nextOriginal = 0;
        m_stop = false;
        m_intoPdf = intoPdf;
        std::map<std::pair<QString, QSize>, std::shared_ptr<Original>, Before> originals;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextFragment fragment = it.fragment();
                if (!fragment.charFormat().isImageFormat())
                    continue;
                const QTextImageFormat format = fragment.charFormat().toImageFormat();
                const QVariant bytes =
                    document.resource(QTextDocument::ImageResource, QUrl(format.name()));
                if (bytes.typeId() != QMetaType::QByteArray)
                    continue;
                const std::shared_ptr<Original> original =
                    originalOf(document, fragment.position(), format, originals);
                for (int i = 0; i < fragment.length(); ++i)
                    m_plan.push_back({fragment.position() + i, bytes.toByteArray(), original});
            }
        // A thread of its own: one of the pool's might never start while the pages wait on it.
        m_threaded = m_plan.size() > 1 || !m_originals.empty();
        if (!m_threaded)
            return;
        m_decoding = std::thread([this] { decodeAll(); });
        const std::size_t cores = std::size_t(std::max(1, QThread::idealThreadCount()));
        for (std::size_t i = 0; i < std::min({cores, m_originals.size(), kMostMakers}); ++i)
            m_makers.emplace_back([this] { makeOriginals(); });
    }
    void stopDecoding() {
        {
            const std::lock_guard lock(m_mutex);
            m_stop = true;
        }
        m_changed.notify_all();
        if (m_decoding.joinable())
            m_decoding.join();
        for (std::thread& maker : m_makers)
            maker.join();
        m_makers.clear();
    }

    // Swaps every stand-in in `pdf` for its JPEG; false, with `pdf` as it was, when the PDF does
    // not hold exactly one stand-in for each.
    bool putJpegsIn(QByteArray& pdf) const {
        std::vector<QSize> sizes;
        std::vector<QByteArray> jpegs;
        for (const Passed& passed : m_passed) {
            sizes.push_back(passed.size);
            jpegs.push_back(passed.bytes);
        }
        return PdfStandIns::swap(pdf, sizes, jpegs);
    }

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
    const QImage& standInFor(const QByteArray& key, const QByteArray& bytes, QSize size) {
        auto found = m_standIns.find(key);
        if (found == m_standIns.end()) {
            m_passed.push_back({PdfStandIns::image(), bytes, size});
            found = m_standIns.insert(key, m_passed.size() - 1);
        }
        return m_passed[*found].standIn;
    }

    // The original the picture at `position` is drawn from, shared by every picture that shows
    // it at the same size; none where the format names none.
    std::shared_ptr<Original>
    originalOf(QTextDocument& document, int position, const QTextImageFormat& format,
               std::map<std::pair<QString, QSize>, std::shared_ptr<Original>, Before>& known) {
        const QString name = format.stringProperty(PageRenderer::OriginalProperty);
        if (name.isEmpty())
            return nullptr;
        const QVariant resource = document.resource(QTextDocument::UserResource, QUrl(name));
        if (!resource.canConvert<PageOriginal>())
            return nullptr;
        PageOriginal source = resource.value<PageOriginal>();
        if (source.size.isEmpty() || !source.read)
            return nullptr;
        const QSize pixels =
            PageRenderer::originalPixels(source.size, intrinsicSize(&document, position, format));
        if (pixels.isEmpty())
            return nullptr;
        std::shared_ptr<Original>& original = known[{name, pixels}];
        if (!original) {
            original = std::make_shared<Original>();
            original->source = std::move(source);
            original->pixels = pixels;
            original->key = "original " + name.toUtf8() + ' ' + QByteArray::number(pixels.width()) +
                            'x' + QByteArray::number(pixels.height());
            m_originals.push_back(original);
        }
        return original;
    }

    // Reads, checks and scales the originals in the order they are first drawn, on as many
    // threads as there are cores. One that cannot be read is said once on the console and its
    // picture is drawn instead.
    void makeOriginals() {
        for (;;) {
            std::shared_ptr<Original> original;
            {
                const std::lock_guard lock(m_mutex);
                if (m_stop || m_nextOriginal == m_originals.size())
                    return;
                original = m_originals[m_nextOriginal++];
            }
            make(*original, m_intoPdf);
            {
                const std::lock_guard lock(m_mutex);
                original->made = true;
            }
            m_changed.notify_all();
        }
    }
    static void make(Original& original, bool intoPdf) {
        const Result<QByteArray> bytes = original.source.read();
        if (!bytes.ok()) {
            Console::log(tr("Printing the coin's own picture: %1.").arg(bytes.error().message));
            return;
        }
        const QImage image = ImageCoding::decodeToFit(bytes.value(), original.pixels);
        if (image.isNull()) {
            Console::log(tr("Printing the coin's own picture: the original photo %1 does not "
                            "decode.")
                             .arg(original.source.label));
            return;
        }
        // In colour, as the PDF takes a JPEG as it is.
        original.jpeg =
            ImageCoding::jpeg(image.convertToFormat(QImage::Format_RGB32), kOriginalQuality);
        if (intoPdf)
            original.plainSize = ImageCoding::plainJpegSize(original.jpeg).value_or(QSize());
    }

    void decodeAll() {
        for (std::size_t i = 0; i < m_plan.size(); ++i) {
            {
                std::unique_lock lock(m_mutex);
                m_changed.wait(lock, [&] { return m_stop || i < m_drawn + kAhead; });
                if (m_stop)
                    return;
            }
            Ready ready;
            const std::shared_ptr<Original>& original = m_plan[i].original;
            if (original) {
                std::unique_lock lock(m_mutex);
                m_changed.wait(lock, [&] { return m_stop || original->made; });
                if (m_stop)
                    return;
            }
            if (original && !original->jpeg.isEmpty()) {
                ready.bytes = original->jpeg;
                ready.key = original->key;
                ready.shape = QSizeF(original->source.size);
                ready.plainSize = original->plainSize;
                if (!ready.plainSize.isValid())
                    ready.image = QImage::fromData(ready.bytes);
            } else {
                ready.bytes = ready.key = m_plan[i].bytes;
                if (m_intoPdf)
                    ready.plainSize = ImageCoding::plainJpegSize(ready.bytes).value_or(QSize());
                // As Qt's handler reads the bytes: whatever format they are in.
                if (!ready.plainSize.isValid())
                    ready.image = QImage::fromData(ready.bytes);
            }
            {
                const std::lock_guard lock(m_mutex);
                m_ready.emplace(i, std::move(ready));
                m_made = i + 1;
            }
            m_changed.notify_all();
        }
    }

    // The picture at `position`, decoded or checked ahead, or nothing.
    Ready decoded(int position) {
        const auto at =
            std::lower_bound(m_plan.begin(), m_plan.end(), position,
                             [](const Planned& p, int pos) { return p.position < pos; });
        if (at == m_plan.end() || at->position != position || !m_threaded)
            return {};
        const std::size_t index = std::size_t(at - m_plan.begin());
        std::unique_lock lock(m_mutex);
        m_drawn = std::max(m_drawn, index);
        m_changed.notify_all();
        m_changed.wait(lock, [&] { return m_made > index || m_stop; });
        const auto found = m_ready.find(index);
        Ready ready = found != m_ready.end() ? found->second : Ready();
        // A picture cut by a page's edge is drawn again at the top of the next page.
        while (!m_ready.empty() && m_ready.begin()->first + kBehind < index)
            m_ready.erase(m_ready.begin());
        return ready;
    }

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

namespace {
// Qt writes the page box in whole points; the paper is written as it is. The numbers keep
// their length, so the cross-reference table stays right.
void writeExactPageBox(QByteArray& pdf, const QRectF& paper) {
    const auto number = [](qreal v) { return QByteArray::number(v, 'f'); };
    const QSize rounded = paper.size().toSize();
    const QByteArray written = number(rounded.width()) + ' ' + number(rounded.height()) + ']';
    const QByteArray exact = number(paper.width()) + ' ' + number(paper.height()) + ']';
    if (written.size() == exact.size() && written != exact)
        pdf.replace("/MediaBox [0 0 " + written, "/MediaBox [0 0 " + exact);
}
} // namespace

QSize PageRenderer::originalPixels(const QSize& size, const QSizeF& box) {
    if (size.isEmpty() || box.isEmpty())
        return {};
    const QSizeF fitted = QSizeF(size).scaled(box, Qt::KeepAspectRatio);
    const qreal perPixel = fitted.width() * OriginalDpi / 72 / size.width();
    if (perPixel >= 1)
        return size;
    return QSize(int(std::ceil(size.width() * perPixel)), int(std::ceil(size.height() * perPixel)))
        .boundedTo(size);
}

PageRenderer::PageRenderer(QTextDocument& document, const QRectF& paperRect,
                           const QRectF& printableRect)
    : m_layoutDevice(std::make_unique<PointDevice>(paperRect))
    , m_document(document)
    , m_paper(paperRect)
    , m_printable(printableRect) {
    m_document.documentLayout()->setPaintDevice(&m_layoutDevice->writer);
    m_pictures = std::make_unique<Pictures>(m_document);
    // A document of no size is not laid out: the margin and the broken runs then cost no
    // layout of their own, and the page size below lays it out once.
    m_document.setPageSize(QSizeF(0, 0));
    m_document.setDocumentMargin(0);
    LongRuns::breakLongRuns(m_document, &m_layoutDevice->writer, m_printable.width());
    // Each block keeps the glyphs it is laid out with, so that drawing it does not shape its
    // text a second time.
    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next())
        block.layout()->setCacheEnabled(true);
    m_document.setPageSize(m_printable.size());
}

PageRenderer::~PageRenderer() {
    m_pictures.reset();
    m_document.documentLayout()->setPaintDevice(nullptr);
}

int PageRenderer::numberOfPages() const {
    return m_document.pageCount();
}

void PageRenderer::drawPage(QPainter& painter, int index, const QRectF& bounds) const {
    const qreal height = m_printable.height();
    painter.save();
    painter.translate(bounds.topLeft());
    if (bounds.width() > 0)
        painter.scale(bounds.width() / m_paper.width(), bounds.width() / m_paper.width());
    painter.translate(m_printable.topLeft() - m_paper.topLeft());
    painter.setClipRect(QRectF(0, 0, m_printable.width(), height));
    painter.translate(0, -index * height);
    QAbstractTextDocumentLayout::PaintContext context;
    // A line that only touches the page's edge belongs to the page beside it: drawn here too, it
    // would be hidden by the clip but still be in the page's text.
    context.clip = QRectF(0, index * height + 0.5, m_printable.width(), height - 1);
    context.palette.setColor(QPalette::Text, Qt::black);
    m_document.documentLayout()->draw(&painter, context);
    painter.restore();
}

void PageRenderer::drawPages(QPainter& painter, const QRectF& bounds,
                             const std::function<void(int)>& before) const {
    m_pictures->decodeAhead(m_document, false);
    const auto stop = qScopeGuard([this] { m_pictures->stopDecoding(); });
    for (int page = 0; page < numberOfPages(); ++page) {
        if (before)
            before(page);
        drawPage(painter, page, bounds);
    }
}

QByteArray PageRenderer::pdf(const std::function<void(int, int)>& progress) const {
    QByteArray bytes = drawPdf(true, progress);
    // Never seen: a stand-in the PDF does not hold once, as drawn. The pictures are then drawn
    // the engine's own way.
    if (!m_pictures->putJpegsIn(bytes))
        bytes = drawPdf(false, {});
    writeExactPageBox(bytes, m_paper);
    return bytes;
}

QByteArray PageRenderer::drawPdf(bool jpegsAsTheyAre,
                                 const std::function<void(int, int)>& progress) const {
    PointDevice device(m_paper);
    const int pages = numberOfPages();
    m_pictures->decodeAhead(m_document, jpegsAsTheyAre);
    const auto stop = qScopeGuard([this] { m_pictures->stopDecoding(); });
    QPainter painter(&device.writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            device.writer.newPage();
        drawPage(painter, page, QRectF(QPointF(0, 0), m_paper.size()));
        if (progress)
            progress(page + 1, pages);
    }
    painter.end();
    return device.buffer.data();
}

#include "PageRenderer.moc"
