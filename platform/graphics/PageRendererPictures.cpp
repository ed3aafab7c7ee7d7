#include "platform/graphics/PageRendererPictures.h"

#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/graphics/PdfStandIns.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPixmap>
#include <QTextBlock>
#include <QTextDocument>
#include <QThread>

#include <algorithm>
#include <cmath>

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

PageRenderer::Pictures::Pictures(QTextDocument& document)
    : m_layout(document.documentLayout())
    , m_qt(m_layout->handlerForObject(QTextFormat::ImageObject))
    , m_qtObject(dynamic_cast<QObject*>(m_qt)) {
    if (m_qt && m_qtObject)
        m_layout->registerHandler(QTextFormat::ImageObject, this);
}

PageRenderer::Pictures::~Pictures() {
    stopDecoding();
    if (m_qt && m_qtObject)
        m_layout->registerHandler(QTextFormat::ImageObject, m_qtObject);
}

QSizeF PageRenderer::Pictures::intrinsicSize(QTextDocument* document, int position,
                                             const QTextFormat& format) {
    const QTextImageFormat image = format.toImageFormat();
    if (!image.hasProperty(QTextFormat::ImageWidth) || !image.hasProperty(QTextFormat::ImageHeight))
        return m_qt->intrinsicSize(document, position, format);
    // Qt sizes a picture one way on the application's thread and another elsewhere.
    const Key key{image.width(), image.height(), m_layout->paintDevice(),
                  QThread::currentThread() == qApp->thread()};
    auto found = m_sizes.find(key);
    if (found == m_sizes.end())
        found = m_sizes.emplace(key, m_qt->intrinsicSize(document, position, format)).first;
    return found->second;
}

void PageRenderer::Pictures::drawObject(QPainter* painter, const QRectF& rect,
                                        QTextDocument* document, int position,
                                        const QTextFormat& format) {
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

void PageRenderer::Pictures::decodeAhead(QTextDocument& document, bool intoPdf) {
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

void PageRenderer::Pictures::stopDecoding() {
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

bool PageRenderer::Pictures::putJpegsIn(QByteArray& pdf) const {
    std::vector<QSize> sizes;
    std::vector<QByteArray> jpegs;
    for (const Passed& passed : m_passed) {
        sizes.push_back(passed.size);
        jpegs.push_back(passed.bytes);
    }
    return PdfStandIns::swap(pdf, sizes, jpegs);
}

const QImage& PageRenderer::Pictures::standInFor(const QByteArray& key, const QByteArray& bytes,
                                                 QSize size) {
    auto found = m_standIns.find(key);
    if (found == m_standIns.end()) {
        m_passed.push_back({PdfStandIns::image(), bytes, size});
        found = m_standIns.insert(key, m_passed.size() - 1);
    }
    return m_passed[*found].standIn;
}

std::shared_ptr<PageRenderer::Pictures::Original> PageRenderer::Pictures::originalOf(
    QTextDocument& document, int position, const QTextImageFormat& format,
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

void PageRenderer::Pictures::makeOriginals() {
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

void PageRenderer::Pictures::make(Original& original, bool intoPdf) {
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

void PageRenderer::Pictures::decodeAll() {
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

PageRenderer::Pictures::Ready PageRenderer::Pictures::decoded(int position) {
    const auto at = std::lower_bound(m_plan.begin(), m_plan.end(), position,
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

#include "moc_PageRendererPictures.cpp"
