#include "platform/graphics/LongRuns.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

namespace LongRuns {
namespace {
// Shorter runs are left to the layout itself.
constexpr int kLongRun = 1000;

// Where the layout starts a new line inside `run`, a stretch of text with nowhere to break,
// which it fills character by character. The layout finds each such line by first measuring
// the whole run from the line's start, so a run of a million characters took minutes; here
// each line is measured in a window of a few lines' worth of the run, which ends the line at
// the same character, since the run does not fit a line either way.
QList<int> linesOfRun(const QString& run, const QFont& font, QPaintDevice* device,
                      const QTextOption& option, qreal width) {
    QList<int> breaks;
    int start = 0, window = 256;
    while (run.size() - start > 1) {
        const int length = std::min<int>(window, int(run.size()) - start);
        QTextLayout layout(run.mid(start, length), font, device);
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(width);
        layout.endLayout();
        const int taken = line.textLength();
        if (taken >= length) {
            if (start + length >= run.size())
                break;   // the rest fits one line
            window *= 2; // a window that fits whole tells nothing: look further
            continue;
        }
        if (taken <= 0)
            break;
        start += taken;
        breaks.append(start);
        window = std::max(64, 2 * taken); // the next line is about as long
    }
    return breaks;
}

} // namespace

void breakLongRuns(QTextDocument& document, QPaintDevice* device, qreal width) {
    QTextCursor cursor(&document);
    bool editing = false;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.length() <= kLongRun)
            continue;
        const QTextBlockFormat format = block.blockFormat();
        if (format.leftMargin() != 0 || format.rightMargin() != 0 || format.indent() != 0 ||
            format.textIndent() != 0 || block.textList() ||
            document.rootFrame() != document.frameAt(block.position()))
            continue;
        const QString text = block.text();
        QList<int> breaks; // in the block, from its start
        QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
        for (qsizetype from = 0, to; from < text.size(); from = to) {
            to = finder.toNextBoundary();
            if (to < 0)
                to = text.size();
            if (to - from <= kLongRun)
                continue;
            // Measured in one font: a run that changes format is left to the layout.
            const QTextBlock::iterator fragment = [&] {
                for (auto it = block.begin(); !it.atEnd(); ++it)
                    if (it.fragment().contains(block.position() + int(from)))
                        return it;
                return block.end();
            }();
            if (fragment.atEnd() || !fragment.fragment().contains(block.position() + int(to) - 1))
                continue;
            const QFont font = fragment.fragment().charFormat().font();
            for (const int at : linesOfRun(text.mid(from, to - from), font, device,
                                           document.defaultTextOption(), width))
                breaks.append(int(from) + at);
        }
        if (breaks.isEmpty())
            continue;
        if (!editing) {
            cursor.beginEditBlock();
            editing = true;
        }
        // From the end, so that the positions still to come stay where they were.
        for (auto it = breaks.crbegin(); it != breaks.crend(); ++it) {
            cursor.setPosition(block.position() + *it);
            cursor.insertBlock();
        }
    }
    if (editing)
        cursor.endEditBlock();
}

} // namespace LongRuns
