// What is printed: pages with numbers, head and foot, and every character of the text.

#include "EditorFixture.h"

#include "Colors.h"
#include "PrintedPages.h"

#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>

using nsModEditor::PrintedPages;
using nsModEditor::sPrintJob;

namespace {

class Print : public EditorTest
{
protected:
    /// Pages of an image, which has a resolution as a printer has.
    PrintedPages pages(const sPrintJob& job) { return PrintedPages(job, &paper, area); }
    QImage painted(const PrintedPages& pages, int page)
    {
        paper.fill(Qt::white);
        QPainter painter(&paper);
        pages.paint(&painter, page);
        painter.end();
        return paper;
    }
    static int ink(const QImage& image, const QRectF& where)
    {
        int count = 0;
        const QRect rect = where.toAlignedRect().intersected(image.rect());
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x)
                count += image.pixelColor(x, y).lightness() < 200 ? 1 : 0;
        }
        return count;
    }
    static int pagesOfPdf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().count("/Type /Page\n");
    }

    QImage paper{700, 900, QImage::Format_RGB32};
    const QRectF area{50, 60, 600, 780};
};

TEST_F(Print, paperIsLightInTheDarkScheme)
{
    Colors::setScheme(Colors::eDark);
    editor->setText("instruction");
    QTextLayout::FormatRange range{0, 11, QTextCharFormat()};
    range.format.setForeground(Colors::of(Colors::eFormatCmd));
    const sPrintJob job = editor->printJob("main.psm", false);
    job.document->firstBlock().layout()->setFormats({range});
    const PrintedPages printed = pages(job);
    const QImage page = painted(printed, 0);
    EXPECT_GT(ink(page, printed.rows().first().rect), 20) << "as white as the paper";
    EXPECT_GT(ink(page, QRectF(area.left(), area.top(), area.width(), 20)), 20) << "the head";
    Colors::setScheme(Colors::eLight);
}

TEST_F(Print, longLinesGoOnInTheNextRow)
{
    const QString longLine = QString("LOAD s0, 0x5A ; a long comment ").repeated(12);
    editor->setText("first\n" + longLine + "\n" + QString(500, 'x') + "\n\tlast");
    const PrintedPages printed = pages(editor->printJob("main.psm", false));
    QMap<int, QString> lines;
    int number = 0;
    for (const PrintedPages::sRow& row : printed.rows()) {
        EXPECT_GE(row.rect.left(), area.left());
        EXPECT_LE(row.rect.right(), area.right() + 1) << qPrintable(row.text);
        if (row.number != 0)
            number = row.number;
        lines[number] += row.text;
    }
    EXPECT_EQ(lines, (QMap<int, QString>{{1, "first"}, {2, longLine}, {3, QString(500, 'x')}, {4, "\tlast"}}));
    EXPECT_GT(printed.rows().size(), 10);
    EXPECT_EQ(printed.count(), 1);
    const QImage page = painted(printed, 0);
    EXPECT_EQ(ink(page, QRectF(area.right() + 2, 0, 700, 900)), 0);
    EXPECT_EQ(ink(page, QRectF(0, 0, area.left() - 1, 900)), 0);
    // Each row stands in its place.
    for (const PrintedPages::sRow& row : printed.rows()) {
        EXPECT_GT(ink(page, row.rect), 10) << qPrintable(row.text);
        EXPECT_EQ(ink(page, QRectF(area.left(), row.rect.top(), row.rect.left() - area.left() - 8, row.rect.height())) >
                      0,
                  row.number != 0);
    }
}

TEST_F(Print, everyPageHasHeadAndFoot)
{
    editor->setText(numberedLines(200));
    sPrintJob job = editor->printJob("src/main.psm", false);
    job.time = QDateTime(QDate(2016, 9, 1), QTime(12, 30));
    const PrintedPages printed = pages(job);
    ASSERT_GT(printed.count(), 2);
    EXPECT_EQ(printed.headName(), "src/main.psm");
    EXPECT_EQ(printed.headTime(), QLocale().toString(job.time, QLocale::ShortFormat));
    EXPECT_TRUE(printed.headTime().contains("16"));
    EXPECT_EQ(printed.foot(0), QString("Page 1 of %1").arg(printed.count()));
    EXPECT_EQ(printed.foot(2), QString("Page 3 of %1").arg(printed.count()));
    int number = 0;
    for (const PrintedPages::sRow& row : printed.rows()) {
        EXPECT_EQ(row.number, ++number);
        EXPECT_EQ(row.text, QString("line %1").arg(number - 1));
        EXPECT_TRUE(area.contains(row.rect));
    }
    EXPECT_EQ(number, 200);
    for (int page = 0; page < printed.count(); ++page) {
        const QImage image = painted(printed, page);
        EXPECT_GT(ink(image, QRectF(area.left(), area.top(), 100, 14)), 20);
        EXPECT_GT(ink(image, QRectF(area.right() - 80, area.top(), 80, 14)), 20);
        EXPECT_GT(ink(image, QRectF(area.right() - 80, area.bottom() - 14, 80, 14)), 20);
    }
    painted(printed, 0).save(QString(NALVO_BINARY_DIR "/screenshots/printed-page.png"));
}

TEST_F(Print, aLineOverThreePagesIsPaintedOnEach)
{
    editor->setText("first\n" + QString("abcdefgh ").repeated(900) + "\nlast");
    const PrintedPages printed = pages(editor->printJob("main.psm", false));
    ASSERT_GE(printed.count(), 3);
    for (int page = 0; page < printed.count(); ++page) {
        const QImage image = painted(printed, page);
        int rows = 0;
        for (const PrintedPages::sRow& row : printed.rows()) {
            if (row.page != page)
                continue;
            ++rows;
            EXPECT_GT(ink(image, row.rect), 10) << page << ' ' << qPrintable(row.text);
        }
        EXPECT_GT(rows, 0);
        if (page < printed.count() - 1) {
            EXPECT_GT(rows, 30);
        }
    }
}

TEST_F(Print, aSelectionIsPrintedWithItsNumbers)
{
    editor->setText(numberedLines(120));
    const auto texts = [&] {
        QStringList result;
        for (const PrintedPages::sRow& row : pages(editor->printJob("main.psm", true)).rows())
            result.append(QString("%1 %2").arg(row.number).arg(row.text));
        return result;
    };
    EXPECT_EQ(texts().size(), 120) << "without a selection all is printed";
    const auto at = [this](int line, int column) {
        return editor->document()->findBlockByNumber(line).position() + column;
    };
    select(at(100, 0), at(102, 8));
    EXPECT_EQ(texts(), QStringList({"101 line 100", "102 line 101", "103 line 102"}));
    select(at(102, 3), at(100, 5));
    EXPECT_EQ(texts(), QStringList({"101 100", "102 line 101", "103 lin"}));
    // A line at whose start the selection ends has nothing selected.
    select(at(7, 0), at(8, 0));
    EXPECT_EQ(texts(), QStringList({"8 line 7"}));
    select(at(7, 1), at(7, 3));
    EXPECT_EQ(texts(), QStringList({"8 in"}));
}

TEST_F(Print, formatsArePrintedAndMarksAreNot)
{
    QTextCharFormat blue;
    blue.setForeground(Qt::blue);
    config.addRule(QRegExp("\\bLOAD\\b"), blue);
    editor->setText("LOAD LOAD\nxx LOAD");
    editor->setSelectionHighlightEn(true);
    select(0, 4);
    const QImage page = painted(pages(editor->printJob("main.psm", false)), 0);
    int bluePixels = 0;
    int yellowPixels = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QColor color = page.pixelColor(x, y);
            bluePixels += color.blue() > 200 && color.red() < 100 ? 1 : 0;
            yellowPixels += color.red() > 200 && color.blue() < 100 ? 1 : 0;
        }
    }
    EXPECT_GT(bluePixels, 20);
    EXPECT_EQ(yellowPixels, 0);
}

TEST_F(Print, pagesOfAPrinter)
{
    QTemporaryDir folder;
    editor->setText(numberedLines(400));
    const auto print = [&](int from, int to, QPrinter::PrintRange range) {
        const QString path = folder.filePath("out.pdf");
        QFile::remove(path);
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPrintRange(range);
        printer.setFromTo(from, to);
        EXPECT_TRUE(PrintedPages::print(editor->printJob("main.psm", range == QPrinter::Selection), &printer));
        return pagesOfPdf(path);
    };
    const int all = print(0, 0, QPrinter::AllPages);
    EXPECT_GT(all, 4);
    EXPECT_LT(all, 12);
    EXPECT_EQ(print(2, 3, QPrinter::PageRange), 2);
    EXPECT_EQ(print(all, 500, QPrinter::PageRange), 1);
    select(0, 20);
    EXPECT_EQ(print(0, 0, QPrinter::Selection), 1);
    QPrinter nowhere(QPrinter::HighResolution);
    nowhere.setOutputFormat(QPrinter::PdfFormat);
    nowhere.setOutputFileName(folder.filePath("no/such/folder.pdf"));
    EXPECT_FALSE(PrintedPages::print(editor->printJob("main.psm", false), &nowhere));
}

TEST_F(Print, emptyLinesCount)
{
    editor->setText("\none\n\ntwo\n");
    QStringList shown;
    for (const PrintedPages::sRow& row : pages(editor->printJob("main.psm", false)).rows())
        shown.append(QString("%1 %2").arg(row.number).arg(row.text));
    EXPECT_EQ(shown, QStringList({"1 ", "2 one", "3 ", "4 two", "5 "}));
}

TEST_F(Print, nothingIsTooSmall)
{
    for (const QString& text : {QString(), QString("\n"), QString(3000, 'x')}) {
        editor->setText(text);
        const sPrintJob job = editor->printJob(QString(300, 'n'), false);
        const PrintedPages printed(job, &paper, QRectF(0, 0, 40, 30));
        EXPECT_GE(printed.count(), 1);
        painted(printed, 0);
    }
}

} // namespace
