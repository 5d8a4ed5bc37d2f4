#include "PrintedPages.h"

#include "Colors.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <limits>

namespace nsModEditor {

namespace {

const int leastRows = 3; ///< rows of a page, however small it is

QString tr(const char* text)
{
    return QCoreApplication::translate("nsModEditor::PrintedPages", text);
}

} // namespace

PrintedPages::PrintedPages(const sPrintJob& job, QPaintDevice* device, const QRectF& area)
    : m_job(job)
    , m_device(device)
    , m_area(area)
{
    const QFontMetricsF metrics(m_job.font, m_device);
    m_rowHeight = qMax<qreal>(metrics.lineSpacing(), 1);
    const int lastLine = m_job.document->findBlock(m_job.end).blockNumber() + 1;
    const qreal digit = metrics.horizontalAdvance('9');
    m_numberWidth = QString::number(lastLine).size() * digit;
    // Header and footer take one row each, and another one as distance to the text.
    m_textArea = m_area.adjusted(m_numberWidth + 2 * digit, 2 * m_rowHeight, 0, -2 * m_rowHeight);
    m_textArea.setWidth(qMax(m_textArea.width(), digit));
    m_textArea.setHeight(qMax(m_textArea.height(), leastRows * m_rowHeight));
    m_starts.append(sStart{m_job.document->findBlock(m_job.start).blockNumber(), 0});
    m_starts = walk(0, std::numeric_limits<int>::max(), [](int, qreal, int, const QTextLayout&, int) {});
}

/// Lays out what is printed of the block. Marks of a selection stay on the screen.
void PrintedPages::layOut(QTextLayout* layout, const QTextBlock& block) const
{
    const int from = qMax(m_job.start - block.position(), 0);
    const int length = qMin(block.length() - 1, m_job.end - block.position()) - from;
    layout->setText(block.text().mid(from, length));
    QVector<QTextLayout::FormatRange> formats = block.layout()->formats();
    for (QTextLayout::FormatRange& range : formats) {
        range.start -= from;
        if (range.start < 0) {
            range.length += range.start;
            range.start = 0;
        }
        range.length = qMax(range.length, 0);
        range.format.clearBackground();
        if (range.format.hasProperty(QTextFormat::ForegroundBrush))
            range.format.setForeground(Colors::onPaper(range.format.foreground().color()));
    }
    layout->setFormats(formats);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(QFontMetricsF(m_job.font, m_device).horizontalAdvance(QString(m_job.tabIndent, 'x')));
    layout->setTextOption(option);
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine())
        line.setLineWidth(m_textArea.width());
    layout->endLayout();
}

/// Lays out the pages from first to last, and shows each row.
/// @return where these pages begin
QVector<PrintedPages::sStart> PrintedPages::walk(int first, int last, const RowVisitor& visit) const
{
    QVector<sStart> starts{m_starts.at(first)};
    int skipped = starts.first().row;
    qreal top = m_textArea.top();
    QTextBlock block = m_job.document->findBlockByNumber(starts.first().block);
    for (; block.isValid() && block.position() <= m_job.end; block = block.next()) {
        // A line at whose start the range ends does not belong to it.
        if (block.position() == m_job.end && m_job.start < m_job.end && (block.length() > 1 || block.next().isValid()))
            break;
        QTextLayout layout(QString(), m_job.font, m_device);
        layOut(&layout, block);
        for (int index = skipped; index < layout.lineCount(); ++index) {
            const qreal height = qMax(layout.lineAt(index).height(), m_rowHeight);
            if (top + height > m_textArea.bottom() && top > m_textArea.top()) {
                if (first + starts.size() > last)
                    return starts;
                starts.append(sStart{block.blockNumber(), index});
                top = m_textArea.top();
            }
            visit(first + starts.size() - 1, top, index == 0 ? block.blockNumber() + 1 : 0, layout, index);
            top += height;
        }
        skipped = 0;
    }
    return starts;
}

QVector<PrintedPages::sRow> PrintedPages::rows() const
{
    QVector<sRow> result;
    walk(0, count() - 1, [&](int page, qreal top, int number, const QTextLayout& layout, int index) {
        const QTextLine line = layout.lineAt(index);
        sRow row;
        row.page = page;
        row.number = number;
        row.text = layout.text().mid(line.textStart(), line.textLength());
        row.rect = QRectF(m_textArea.left(), top, line.naturalTextWidth(), line.height());
        result.append(row);
    });
    return result;
}

QString PrintedPages::headTime() const
{
    return QLocale().toString(m_job.time, QLocale::ShortFormat);
}

QString PrintedPages::foot(int page) const
{
    return tr("Page %1 of %2").arg(page + 1).arg(count());
}

void PrintedPages::paintHeadAndFoot(QPainter* painter, int page) const
{
    const QFontMetricsF metrics(m_job.font, m_device);
    const QString time = headTime();
    const QRectF head(m_area.left(), m_area.top(), m_area.width(), m_rowHeight);
    const qreal nameWidth = head.width() - metrics.horizontalAdvance(time + "  ");
    // The end of a path is more significant than its start.
    painter->drawText(head, Qt::AlignLeft | Qt::AlignTop,
                      metrics.elidedText(headName(), Qt::ElideLeft, qMax<qreal>(nameWidth, 0)));
    painter->drawText(head, Qt::AlignRight | Qt::AlignTop, time);
    painter->drawLine(QPointF(m_area.left(), head.bottom() + m_rowHeight / 4),
                      QPointF(m_area.right(), head.bottom() + m_rowHeight / 4));
    const QRectF footArea(m_area.left(), m_area.bottom() - m_rowHeight, m_area.width(), m_rowHeight);
    painter->drawText(footArea, Qt::AlignRight | Qt::AlignBottom, foot(page));
}

void PrintedPages::paint(QPainter* painter, int page) const
{
    painter->setFont(m_job.font);
    painter->setPen(Colors::of(Colors::ePaperText));
    paintHeadAndFoot(painter, page);
    walk(page, page, [&](int, qreal top, int number, const QTextLayout& layout, int index) {
        if (number > 0) {
            const QRectF cell(m_area.left(), top, m_numberWidth, m_rowHeight);
            painter->setPen(Colors::of(Colors::ePaperNumbers));
            painter->drawText(cell, Qt::AlignRight | Qt::AlignTop, QString::number(number));
            painter->setPen(Colors::of(Colors::ePaperText));
        }
        const QTextLine line = layout.lineAt(index);
        // A row is drawn from where it stands in its line.
        line.draw(painter, QPointF(m_textArea.left(), top) - line.position());
    });
}

namespace {

/// Neither painter nor printer reports that the end of a PDF file could not be written.
bool isComplete(const QPrinter& printer)
{
    QFile file(printer.outputFileName());
    if (printer.outputFormat() != QPrinter::PdfFormat || !QFileInfo(file).isFile())
        return true;
    return file.open(QIODevice::ReadOnly) && file.seek(qMax<qint64>(0, file.size() - 16)) &&
           file.readAll().contains("%%EOF");
}

} // namespace

bool PrintedPages::print(const sPrintJob& job, QPrinter* printer)
{
    QPainter painter;
    if (!painter.begin(printer))
        return false;
    const QRectF page(QPointF(0, 0), printer->pageLayout().paintRectPixels(printer->resolution()).size());
    const PrintedPages pages(job, printer, page);
    int first = 0;
    int last = pages.count() - 1;
    if (printer->printRange() == QPrinter::PageRange && printer->fromPage() > 0) {
        first = qMin(printer->fromPage() - 1, last);
        last = qBound(first, printer->toPage() - 1, last);
    }
    const bool isReverse = printer->pageOrder() == QPrinter::LastPageFirst;
    for (int step = 0; step <= last - first; ++step) {
        if (step > 0 && !printer->newPage())
            return false;
        pages.paint(&painter, isReverse ? last - step : first + step);
    }
    return painter.end() && isComplete(*printer);
}

} // namespace nsModEditor
