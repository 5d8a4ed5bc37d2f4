// A picture of a document with all that it can show, for a person to look at.

#include "EditorFixture.h"

#include <QDir>
#include <QPainter>

namespace {

using nsModEditor::EditorMemPageAddrMap;
using nsModEditor::EditorWidget;

class Screenshot : public EditorTest
{
protected:
    void addRule(const QString& pattern, const QColor& color, int weight)
    {
        QTextCharFormat format;
        format.setForeground(color);
        format.setFontWeight(weight);
        config.addRule(QRegExp(pattern, Qt::CaseInsensitive), format);
    }
    void addRules()
    {
        for (const char* word : {"LOAD", "ADD", "SUB", "COMP", "JUMP", "CALL", "RET", "WRPRT", "RDPRT", "NOP"})
            addRule(QString("\\b%1\\b").arg(word), Qt::black, QFont::Bold);
        addRule("\\bs[0-9A-F]\\b", Qt::darkBlue, QFont::Bold);
        addRule("^\\S+:", Qt::black, QFont::Bold);
        addRule("\\b0x[0-9A-F]+\\b", Qt::darkMagenta, QFont::Bold);
        addRule("#\\b(EQU|ORG|NAMESPACE|ENDNAMESPACE)\\b", Qt::darkGreen, QFont::Bold);
        addRule(";[^\n]*", Qt::darkGray, QFont::Normal);
        addRule("^;\\s*##[^\n]*", Qt::darkRed, QFont::Normal);
    }
    void load(EditorWidget* widget)
    {
        widget->setFilePath("/p/blink.psm");
        widget->setText(";## Blinking lights ##########################\n"
                        "#EQU portLed,   0x10\n"
                        "#EQU delayHigh, 0xC8\n"
                        "\n"
                        "#ORG ADDR, 0x000\n"
                        "start:\n"
                        "\tLOAD  s0, 0x01      ; first light\n"
                        "loop:\n"
                        "\tWRPRT s0, portLed\n"
                        "\tCALL  wait\n"
                        "\tADD   s0, s0        ; next light\n"
                        "\tJUMP  NZ, loop\n"
                        "\tJUMP  start\n"
                        "\n"
                        ";## Waiting ##################################\n"
                        "wait:\n"
                        "\tLOAD  s1, delayHigh\n"
                        "waitLoop:\n"
                        "\tSUB   s1, 0x01\n"
                        "\tJUMP  NZ, waitLoop\n"
                        "\tRET");
        widget->setMemPageAddrEn(true);
        widget->setMemPageAddrMap(map.get());
        widget->setSimStartPointer(6);
        widget->setSimBreakpoint(9);
        widget->setSimBreakpoint(6);
        widget->setBookmark(6);
        widget->setBookmark(15);
        widget->setSelectionHighlightEn(true);
    }
    static bool hasColor(const QImage& image, const QColor& color)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == color.rgb())
                    return true;
            }
        }
        return false;
    }
    void SetUp() override
    {
        EditorTest::SetUp();
        addRules();
        QStringList files{"/p/blink.psm"};
        map = std::make_unique<EditorMemPageAddrMap>(&files);
        int addr = 0;
        for (const int line : {6, 8, 9, 10, 11, 12, 16, 18, 19, 20})
            map->addItem(0, line, addr++);
    }

    std::unique_ptr<EditorMemPageAddrMap> map;
};

TEST_F(Screenshot, EverythingAtOnce)
{
    QWidget page;
    auto* valid = new EditorWidget(&page);
    auto* stale = new EditorWidget(&page);
    const int width = 460;
    int x = 0;
    for (EditorWidget* widget : {valid, stale}) {
        connectAll(widget);
        widget->setSyntaxHighlighterConfig(&config);
        widget->setFont(QFont("DejaVu Sans Mono", 9));
        widget->setGeometry(x, 0, width, 360);
        x += width + 8;
        load(widget);
    }
    page.resize(x - 8, 360);
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&page, 60000));
    valid->setLineHighlighted(9);
    valid->find("start", false, true, false, EditorWidget::eFindOriginStart);
    EXPECT_TRUE(map->valid);
    QApplication::processEvents();
    QImage shown(page.size(), QImage::Format_RGB32);
    shown.fill(QColor(0xf3f4f6));
    const QImage left = valid->grab().toImage();
    // A line more, and the addresses of all documents are grey.
    stale->setCursorToLine(13);
    QTest::keyClick(stale, Qt::Key_Return);
    EXPECT_FALSE(map->valid);
    const QImage right = stale->grab().toImage();
    QPainter painter(&shown);
    painter.drawImage(valid->pos(), left);
    painter.drawImage(stale->pos(), right);
    painter.end();
    const QString dir = QStringLiteral(NALVO_BINARY_DIR "/screenshots");
    ASSERT_TRUE(QDir().mkpath(dir));
    EXPECT_TRUE(shown.save(dir + "/editor-widget.png"));
    valid->setMemPageAddrMap(nullptr);
    stale->setMemPageAddrMap(nullptr);
}

TEST_F(Screenshot, Scales)
{
    load(editor.get());
    editor->setLineHighlighted(9);
    const QString dir = QStringLiteral(NALVO_BINARY_DIR "/screenshots");
    ASSERT_TRUE(QDir().mkpath(dir));
    for (const int percent : {100, 150, 200}) {
        QImage image(editor->size() * percent / 100, QImage::Format_RGB32);
        image.setDevicePixelRatio(percent / 100.0);
        editor->render(&image);
        EXPECT_TRUE(image.save(dir + QString("/editor-widget-%1.png").arg(percent)));
        // Text and marks are there at each scale.
        for (const QColor& color : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::darkYellow), QColor(Qt::black)})
            EXPECT_TRUE(hasColor(image, color)) << percent << ' ' << qPrintable(color.name());
    }
    editor->setMemPageAddrMap(nullptr);
}

} // namespace
