#pragma once

#include <QDateTime>
#include <QFont>
#include <QRectF>
#include <QString>
#include <QVector>

#include <functional>

class QPaintDevice;
class QPainter;
class QPrinter;
class QTextBlock;
class QTextDocument;
class QTextLayout;

namespace nsModEditor {

/// What is printed of a document.
struct sPrintJob
{
    const QTextDocument* document = nullptr;
    QString name;      ///< of the file, for the head of the pages
    QDateTime time;    ///< for the head of the pages
    QFont font;        ///< of the text, in points
    int tabIndent = 4; ///< characters
    int start = 0;     ///< first position that is printed
    int end = 0;       ///< the position after the last one
};

/// A document, or a part of it, on pages: lines with their numbers in the document, long ones in several rows, with a
/// header of file name and date and a footer with the page number.
class PrintedPages
{
public:
    /// A row of text on a page, for inspection of the printed pages.
    struct sRow
    {
        int page = 0;   ///< counted from 0
        int number = 0; ///< of the line, counted from 1; 0 for the further rows of a line
        QString text;
        QRectF rect; ///< what the text takes, in pixels of the device
    };

    /// @param device what the pages are painted on; it gives the resolution
    /// @param area printable area of a page, in pixels of the device
    PrintedPages(const sPrintJob& job, QPaintDevice* device, const QRectF& area);

    int count() const { return m_starts.size(); }
    QVector<sRow> rows() const;
    QString headName() const { return m_job.name; }
    QString headTime() const;
    QString foot(int page) const;
    /// Paints one page. @param page counted from 0
    void paint(QPainter* painter, int page) const;

    /// Prints the pages that the printer is set to, in its order.
    /// @return false if the printer can not be painted on
    static bool print(const sPrintJob& job, QPrinter* printer);

private:
    /// Called for each row: page, height on it, number of the line or 0, the line's layout and the row's index in that.
    using RowVisitor = std::function<void(int page, qreal top, int number, const QTextLayout& layout, int index)>;

    /// Where a page begins.
    struct sStart
    {
        int block = 0; ///< number of the line, counted from 0
        int row = 0;   ///< of that line
    };

    QVector<sStart> walk(int first, int last, const RowVisitor& visit) const;
    void layOut(QTextLayout* layout, const QTextBlock& block) const;
    void paintHeadAndFoot(QPainter* painter, int page) const;

    sPrintJob m_job;
    QPaintDevice* m_device;
    QRectF m_area;
    QRectF m_textArea;
    qreal m_rowHeight = 1;
    qreal m_numberWidth = 0;
    QVector<sStart> m_starts; ///< a page each
};

} // namespace nsModEditor
