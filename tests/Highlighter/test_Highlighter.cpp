// What the list of rules and the highlighter promise, case by case.

#include "HighlightFixture.h"

#include <QImage>
#include <QPlainTextEdit>
#include <QSignalSpy>

#include <memory>

using nsModEditor::EditorSyntaxHighlighter;
using nsModEditor::EditorSyntaxHighlighterConfig;

namespace {

QTextCharFormat usual(ModEditorHookIf::eHighlightRule_t rule)
{
    return usualFormat(rule);
}

class AsmHighlightTest : public HighlightTest
{
protected:
    AsmHighlightTest() { EXPECT_TRUE(setAsmRules(highlightProcessors[0], &config)); }
};

const QBrush yellow(Qt::yellow);

} // namespace

TEST_F(AsmHighlightTest, WordWithColonIsALabelAtTheStartOnly)
{
    expectEqualText("loop: NOP\n loop: NOP\n  loop NOP");
    EXPECT_EQ(formatAt(0, 0), usual(ModEditorHookIf::eHighlightRuleLabel));
    EXPECT_EQ(formatAt(0, 4), usual(ModEditorHookIf::eHighlightRuleLabel));
    EXPECT_EQ(formatAt(1, 1), QTextCharFormat());
    EXPECT_EQ(formatAt(1, 5), QTextCharFormat());
    EXPECT_EQ(formatAt(2, 2), QTextCharFormat());
}

TEST_F(AsmHighlightTest, HexNumberIsOnePiece)
{
    expectEqualText(" 0x12 12 0x1G b101");
    for (int column = 1; column < 5; ++column)
        EXPECT_EQ(formatAt(0, column), usual(ModEditorHookIf::eHighlightRuleHexNumber)) << column;
    EXPECT_EQ(formatAt(0, 6), usual(ModEditorHookIf::eHighlightRuleDecNumber));
    EXPECT_EQ(formatAt(0, 9), QTextCharFormat());
    EXPECT_EQ(formatAt(0, 14), usual(ModEditorHookIf::eHighlightRuleBinNumber));
}

TEST_F(AsmHighlightTest, SemicolonInAStringStartsAComment)
{
    expectEqualText(" \"ab;cd\" x");
    EXPECT_EQ(formatAt(0, 1), usual(ModEditorHookIf::eHighlightRuleString));
    EXPECT_EQ(formatAt(0, 3), usual(ModEditorHookIf::eHighlightRuleString));
    EXPECT_EQ(formatAt(0, 4), usual(ModEditorHookIf::eHighlightRuleComment));
    EXPECT_EQ(formatAt(0, 9), usual(ModEditorHookIf::eHighlightRuleComment));
}

TEST_F(AsmHighlightTest, SeparatorOnlyAtTheStartOfALine)
{
    expectEqualText("; ## part\n ; ## part");
    EXPECT_EQ(formatAt(0, 0), usual(ModEditorHookIf::eHighlightRuleSeparator));
    EXPECT_EQ(formatAt(1, 1), usual(ModEditorHookIf::eHighlightRuleComment));
    EXPECT_EQ(formatAt(1, 4), usual(ModEditorHookIf::eHighlightRuleComment));
}

TEST_F(AsmHighlightTest, CommentWinsOverWordsAndNavigatorCommandsOverComments)
{
    expectEqualText(" LOAD ; LOAD \\navSep \"Part\" x");
    EXPECT_EQ(formatAt(0, 1), usual(ModEditorHookIf::eHighlightRuleCmd));
    EXPECT_EQ(formatAt(0, 8), usual(ModEditorHookIf::eHighlightRuleComment));
    EXPECT_EQ(formatAt(0, 13), usual(ModEditorHookIf::eHighlightRuleNaviCmd));
    EXPECT_EQ(formatAt(0, 24), usual(ModEditorHookIf::eHighlightRuleNaviCmd));
    EXPECT_EQ(formatAt(0, 28), usual(ModEditorHookIf::eHighlightRuleComment));
}

TEST_F(AsmHighlightTest, RegistersMindTheCaseAndInstructionsDoNot)
{
    expectEqualText(" load s0 S0 Screen::x ::IODEV::SCREEN");
    EXPECT_EQ(formatAt(0, 1), usual(ModEditorHookIf::eHighlightRuleCmd));
    EXPECT_NE(formatAt(0, 6), formatAt(0, 9));
    EXPECT_EQ(formatAt(0, 12), usual(ModEditorHookIf::eHighlightRuleAttr));
    EXPECT_EQ(formatAt(0, 31), usual(ModEditorHookIf::eHighlightRuleAttr));
}

TEST_F(HighlightTest, WithoutRulesTheTextIsPlainAndTheSelectionMarked)
{
    expectEqualText("LOAD s0, 12 ; text");
    EXPECT_EQ(formatAt(0, 0), QTextCharFormat());
    select("s0");
    expectEqual();
    EXPECT_EQ(formatAt(0, 5).background(), yellow);
    EXPECT_EQ(formatAt(0, 4), QTextCharFormat());
}

TEST_F(HighlightTest, LaterRuleWins)
{
    config.addRule("[a-c]+", color(Qt::red));
    config.addRule("[c-e]+", color(Qt::blue));
    config.addKeyword("abcde", color(Qt::green));
    config.addRule("b", color(Qt::cyan));
    expectEqualText("abcde abcdef");
    EXPECT_EQ(formatAt(0, 0), color(Qt::green));
    EXPECT_EQ(formatAt(0, 1), color(Qt::cyan));
    EXPECT_EQ(formatAt(0, 6), color(Qt::red));
    EXPECT_EQ(formatAt(0, 8), color(Qt::blue));
}

TEST_F(HighlightTest, ListOfRules)
{
    config.addRule(QRegExp(), color(Qt::red));
    config.addRule(QString(), color(Qt::red));
    config.addRules({"", "a", ""}, color(Qt::red));
    ASSERT_EQ(config.rules().size(), 1);
    config.addKeywords({"b.", "c"}, color(Qt::blue));
    config.addRule(QRegExp("D", Qt::CaseInsensitive), color(Qt::blue));
    ASSERT_EQ(config.rules().size(), 4);
    EXPECT_EQ(config.rules().at(1).first, QRegExp("\\bb.\\b", Qt::CaseSensitive));
    EXPECT_EQ(config.rules().at(2).first, QRegExp("\\bc\\b", Qt::CaseSensitive));
    EXPECT_EQ(config.rules().at(3).first.caseSensitivity(), Qt::CaseInsensitive);
    EXPECT_EQ(config.rules().at(0).second, color(Qt::red));
    config.setSelectionFormat(color(Qt::green));
    EXPECT_EQ(config.selectionFormat(), color(Qt::green));
    expectEqualText("a bx b. c d D B A");
    config.clear();
    EXPECT_TRUE(config.rules().isEmpty());
}

TEST_F(HighlightTest, RuleKeepsTheFormatThatItWasGiven)
{
    QTextCharFormat format = color(Qt::red);
    config.addKeyword("a", format);
    format.setForeground(Qt::blue);
    setText("a");
    EXPECT_EQ(formatAt(0, 0), color(Qt::red));
}

TEST_F(HighlightTest, EmptyMatchesGoOnByOneCharacter)
{
    for (const char* pattern : {"x*", "\\b", "^", "$", "(x|)", "x*|y", "\\b\\b", "x{0,2}"}) {
        config.clear();
        config.addRule(pattern, color(Qt::red));
        expectEqualText("axxbx yx\n\nxx\nab", pattern);
    }
    for (const char* pattern : {"x*", "|", "", "a|", ".*", "[", "(", "a)", "\\", "*", "s0|x"}) {
        select(pattern);
        expectEqual(pattern);
    }
}

TEST_F(HighlightTest, SelectionWithPatternCharacters)
{
    setText("a+b aab ab a.b axb\n\"C++\" (s0)");
    select("a+b");
    expectEqual();
    EXPECT_EQ(formatAt(0, 0), QTextCharFormat());
    EXPECT_EQ(formatAt(0, 4).background(), yellow);
    EXPECT_EQ(formatAt(0, 8).background(), yellow);
    select("a.b");
    expectEqual();
    EXPECT_EQ(formatAt(0, 0).background(), yellow);
    EXPECT_EQ(formatAt(0, 15).background(), yellow);
    for (const char* selected : {"(s0)", "C++", "\"C", "s0)", "[a", "a|s0", "A+B"}) {
        select(selected);
        expectEqual(selected);
    }
}

TEST_F(HighlightTest, SelectionTakesTheFormatOfItsFirstCharacter)
{
    config.addRule("[0-9]+", color(Qt::blue));
    config.addRule("[a-z]+", color(Qt::red));
    setText("ab12");
    select("ab12");
    expectEqual();
    QTextCharFormat marked = color(Qt::red);
    marked.setBackground(Qt::yellow);
    EXPECT_EQ(formatAt(0, 0), marked);
    EXPECT_EQ(formatAt(0, 3), marked);
    select(QString());
    expectEqual();
    EXPECT_EQ(formatAt(0, 3), color(Qt::blue));
}

TEST_F(HighlightTest, SelectionOverSeveralLinesMarksNothing)
{
    QString lines = QString("  LOAD s0, 12 ; \"text\" (see there)\n").repeated(5000);
    setText("LOAD s0\n");
    highlighter->setSelection(lines.replace('\n', QChar(QChar::ParagraphSeparator)));
    highlighter->rehighlight();
    expectEqual();
    // A branch without the end of a line can match all the same.
    select(QString("LOAD|x") + QChar(QChar::ParagraphSeparator) + "y");
    expectEqual();
    EXPECT_EQ(formatAt(0, 0).background(), yellow);
}

TEST_F(HighlightTest, EditsAreFollowed)
{
    ASSERT_TRUE(setAsmRules(highlightProcessors[0], &config));
    setText("LOAD s0, 1\nNOP\n; end");
    select("s0");
    QTextCursor cursor(&document);
    QTextCursor other(&reference);
    for (QTextCursor* each : {&cursor, &other}) {
        each->movePosition(QTextCursor::EndOfBlock);
        each->insertText(" ; s0\nJUMP s0\n");
        each->movePosition(QTextCursor::Start);
        each->deleteChar();
        each->insertText("x");
    }
    // The reference has no layout to hear of changes by.
    naive.rehighlight();
    expectEqual();
    document.undo();
    reference.undo();
    naive.rehighlight();
    expectEqual();
}

TEST_F(HighlightTest, WithoutConfigurationTheTextIsPlain)
{
    config.addRule("a", color(Qt::red));
    setText("aba");
    EXPECT_EQ(formatAt(0, 0), color(Qt::red));
    highlighter->setSyntaxHighlighterConfig(nullptr);
    highlighter->setSelection("aba");
    highlighter->rehighlight();
    EXPECT_TRUE(document.begin().layout()->formats().isEmpty());
    EXPECT_EQ(document.begin().userState(), 0);
    document.setPlainText("aa");
    EXPECT_TRUE(document.begin().layout()->formats().isEmpty());
    highlighter->setSyntaxHighlighterConfig(&config);
    QCoreApplication::processEvents();
    EXPECT_EQ(formatAt(0, 0), color(Qt::red));
}

TEST_F(HighlightTest, ChangeOfTheRulesReachesOpenDocuments)
{
    setText("aba");
    QSignalSpy spy(&config, &EditorSyntaxHighlighterConfig::rulesChanged);
    config.addRule("a", color(Qt::red));
    config.addRule("b", color(Qt::blue));
    EXPECT_EQ(formatAt(0, 0), QTextCharFormat());
    QCoreApplication::processEvents();
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(formatAt(0, 0), color(Qt::red));
    EXPECT_EQ(formatAt(0, 1), color(Qt::blue));
    config.clear();
    document.setPlainText("ab");
    EXPECT_EQ(formatAt(0, 0), QTextCharFormat());
    config.addRule("a", color(Qt::green));
    config.clear();
    config.addRule("b", color(Qt::green));
    QCoreApplication::processEvents();
    EXPECT_EQ(formatAt(0, 0), QTextCharFormat());
    EXPECT_EQ(formatAt(0, 1), color(Qt::green));
}

TEST(HighlighterLifeTest, ConfigurationMayEndBeforeTheHighlighter)
{
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    auto* highlighter = new EditorSyntaxHighlighter(&document);
    auto config = std::make_unique<EditorSyntaxHighlighterConfig>();
    config->addRule("a", QTextCharFormat(usual(ModEditorHookIf::eHighlightRuleCmd)));
    highlighter->setSyntaxHighlighterConfig(config.get());
    document.setPlainText("aba");
    ASSERT_FALSE(document.begin().layout()->formats().isEmpty());
    highlighter->setSelection("aba");
    config.reset();
    QCoreApplication::processEvents();
    highlighter->rehighlight();
    document.setPlainText("ab\naba");
    EXPECT_TRUE(document.begin().layout()->formats().isEmpty());
    EXPECT_TRUE(document.lastBlock().layout()->formats().isEmpty());
}

TEST(HighlighterLifeTest, WithoutADocument)
{
    EditorSyntaxHighlighterConfig config;
    config.addRule("a", usual(ModEditorHookIf::eHighlightRuleCmd));
    EditorSyntaxHighlighter highlighter(nullptr);
    highlighter.setSyntaxHighlighterConfig(&config);
    highlighter.setSelection("a");
    highlighter.rehighlight();
    highlighter.highlightBlock("aba");
    highlighter.highlightSelection("aba");
    QTextDocument document("aba");
    highlighter.setDocument(&document);
    highlighter.rehighlight();
    EXPECT_FALSE(document.begin().layout()->formats().isEmpty());
    highlighter.setDocument(nullptr);
    highlighter.rehighlight();
}

TEST_F(HighlightTest, RepaintNeitherChangesNorSignalsTheText)
{
    config.addRule("a", color(Qt::red));
    QPlainTextEdit editor;
    editor.setDocument(&document);
    setText("aba\nb\na");
    document.setModified(false);
    QSignalSpy changed(&document, &QTextDocument::contentsChanged);
    highlighter->setSelection("aba");
    highlighter->rehighlight();
    EXPECT_EQ(formatAt(0, 0).background(), yellow);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_FALSE(document.isModified());
    EXPECT_FALSE(document.isUndoAvailable());
}

/// The marks must reach the screen, and go again.
TEST_F(HighlightTest, SelectionIsPainted)
{
    QPlainTextEdit editor;
    editor.setDocument(&document);
    editor.resize(300, 120);
    editor.show();
    document.setPlainText("one two\nthree\ntwo four");
    const auto yellowPixels = [&editor] {
        QCoreApplication::processEvents();
        const QImage image = editor.viewport()->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == QColor(Qt::yellow).rgb() ? 1 : 0;
        }
        return count;
    };
    EXPECT_EQ(yellowPixels(), 0);
    highlighter->setSelection("two");
    highlighter->rehighlight();
    const int both = yellowPixels();
    EXPECT_GT(both, 50);
    highlighter->setSelection("four");
    highlighter->rehighlight();
    const int one = yellowPixels();
    EXPECT_GT(one, 25);
    EXPECT_LT(one, both);
    highlighter->setSelection(QString());
    highlighter->rehighlight();
    EXPECT_EQ(yellowPixels(), 0);
}
