// Searching with regular expressions, in a selection, while typing, and in many texts.

#include "EditorModuleTest.h"

#include "SourceSearch.h"
#include "SourceSearchPanel.h"
#include "TextOverlay.h"
#include "TextSearch.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTreeWidget>

using namespace nsModEditor;

namespace {

class FindExpressions : public EditorModuleTest
{
protected:
    int at(EditorWidget* widget) const { return widget->textCursor().selectionStart(); }
    static QStringList hits(const sSearch_t& search, const QString& line)
    {
        QStringList found;
        for (const sHit_t& hit : TextSearch(search).hitsIn(line))
            found.append(line.mid(hit.start, hit.length));
        return found;
    }
};

TEST_F(FindExpressions, hitsOfALine)
{
    EXPECT_EQ(hits({"a.c", false, false, false}, "abc a.c A.C"), (QStringList{"a.c", "A.C"}));
    EXPECT_EQ(hits({"a.c", true, false, true}, "abc a.c A.C"), (QStringList{"abc", "a.c"}));
    EXPECT_EQ(hits({"ab", false, true, false}, "ab abc xab ab_ 1ab"), (QStringList{"ab", "ab"}));
    EXPECT_EQ(hits({"a|b", false, true, true}, "a ab b"), (QStringList{"a", "b"}));
    // Nothing is no hit, and a line goes on after it.
    EXPECT_EQ(hits({"x*", false, false, true}, "axxb"), QStringList{"xx"});
    EXPECT_EQ(hits({"(", false, false, true}, "("), QStringList());
    EXPECT_EQ(hits({"a)(b", false, true, true}, "a"), QStringList());
    EXPECT_FALSE(TextSearch({"(", false, false, true}).errorText().isEmpty());
    EXPECT_TRUE(TextSearch({"(", false, false, false}).errorText().isEmpty());
    EXPECT_FALSE(TextSearch(sSearch_t()).isValid());
}

TEST_F(FindExpressions, replacementsTakeTheGroups)
{
    const TextSearch search({"(\\w+), (\\w+)", false, false, true});
    const QString line = "LOAD s0, s1";
    EXPECT_EQ(TextSearch::replaced(line, search.hitsIn(line, "\\2,\\t\\1 \\\\ \\0 \\x \\9")),
              QString("LOAD s1,\ts0 \\ s0, s1 \\x "));
    const TextSearch plain({"s0", false, false, false});
    EXPECT_EQ(TextSearch::replaced("s0 s0", plain.hitsIn("s0 s0", "\\1")), QString("\\1 \\1"));
}

TEST_F(FindExpressions, anExpressionThatTakesLongIsGivenUp)
{
    // Without a limit, this would take longer than anybody can wait.
    const QString line = QString("a").repeated(60) + 'b';
    EXPECT_EQ(hits({"(a|aa|a+)+$", false, false, true}, line), QStringList());
    EXPECT_EQ(hits({"(x+x+)+y", false, false, true}, QString("x").repeated(60)), QStringList());
}

TEST_F(FindExpressions, hitsAreThoseOfTheLibrary)
{
    quint32 state = 3;
    const auto random = [&state](quint32 count) {
        state = state * 1664525u + 1013904223u;
        return (state >> 16) % count;
    };
    const QStringList patterns = {"a",      "ab|b", "a*",    "|a",     "b*?",    "(a|b)*c",  "a.*b",
                                  ".*c",    "^a",   "b$",    "\\bab?", "a?b",    "(?<=a)b+", "(?!ab)[abc]",
                                  "(.)\\1", "\\W",  "a\\Kb", "x?",     "(a+)+b", "(a*)*[cd]"};
    int compared = 0;
    for (int i = 0; i < 400; ++i) {
        QString line;
        for (int length = random(i % 10 == 0 ? 3000 : 40); length > 0; --length)
            line += QString::fromUtf8("abc \u00e4")[int(random(5))];
        // Beyond the first plane a character takes two places.
        if (i % 7 == 0)
            line.insert(int(random(quint32(line.size() + 1))), QString::fromUtf8("\U0001F600"));
        const QString& pattern = patterns.at(int(random(quint32(patterns.size()))));
        QStringList expected;
        const QRegularExpression library(pattern, QRegularExpression::UseUnicodePropertiesOption);
        bool isWhole = library.match(line).isValid();
        for (auto it = library.globalMatch(line); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            if (match.capturedLength() > 0)
                expected.append(match.captured());
        }
        SearchTime time(60000);
        QStringList actual;
        for (const sHit_t& hit : TextSearch({pattern, true, false, true}).hitsIn(line, &time))
            actual.append(line.mid(hit.start, hit.length));
        if (!isWhole || !time.isComplete())
            continue;
        EXPECT_EQ(actual, expected) << pattern.toStdString() << " in " << line.left(80).toStdString();
        ++compared;
    }
    EXPECT_GT(compared, 300);
}

TEST_F(FindExpressions, anExpressionThatTakesLongIsSaid)
{
    const QByteArray slow = QByteArray(60, 'a') + 'b';
    EditorWidget* widget = open("a.psm", "b\n" + slow);
    findReplace.regExp = true;
    findReplace.find = "(a+)+$";
    editor.findPreview();
    EXPECT_EQ(findReplace.result, "Takes too long");
    editor.findNext(true);
    editor.findNext(false);
    EXPECT_EQ(gui.statusText, "String not found; lines in which the regular expression takes too long were left out.");
    // All or nothing.
    widget->setText("aaa\n" + slow + "\naa");
    findReplace.replacement = "x";
    editor.replaceAll(true);
    EXPECT_EQ(gui.statusText, "Nothing was replaced: the regular expression takes too long.");
    EXPECT_EQ(widget->toPlainText(), "aaa\n" + slow + "\naa");
    EXPECT_FALSE(widget->isUndoAvailable());
    editor.findPreview();
    EXPECT_EQ(findReplace.result, "more than 2 hits");
}

TEST_F(FindExpressions, aLineOfManyCharactersIsLeftOutWhereEachTakesItsTime)
{
    // Each place on its own is cheap, all of them together take minutes.
    EditorWidget* widget = open("a.psm", QByteArray("ab").repeated(40000) + "\nabd");
    findReplace.regExp = true;
    findReplace.find = "(a|b)*[cd]";
    editor.findPreview();
    EXPECT_EQ(findReplace.result.isEmpty(), false);
    EXPECT_NE(findReplace.result, "No hit");
    EXPECT_NE(findReplace.result, "1 hit") << "the long line was not searched to its end";
    SourceSearch search;
    QSignalSpy end(&search, &SourceSearch::finished);
    search.start(TextSearch({"(a|b)*[cd]", false, false, true}), {{"t", true, widget->toPlainText()}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return end.count() > 0; }, 60000));
    EXPECT_EQ(search.leftOut(), 1);
    EXPECT_EQ(search.hits(), 1) << "that of the other line";
}

TEST_F(FindExpressions, findNextGoesFromHitToHitAndWraps)
{
    EditorWidget* widget = open("a.psm", "s0 s1\nx\ns22");
    findReplace.find = "s[0-9]+";
    findReplace.regExp = true;
    const auto next = [&](bool changed) {
        editor.findNext(changed);
        return at(widget);
    };
    EXPECT_EQ(next(true), 0);
    EXPECT_EQ(next(false), 3);
    EXPECT_EQ(next(false), 8);
    EXPECT_EQ(widget->textCursor().selectedText(), QString("s22"));
    EXPECT_EQ(next(false), 8);
    EXPECT_EQ(gui.statusText, "End of file reached, continuing from the begin...");
    EXPECT_EQ(next(false), 0);
    EXPECT_EQ(gui.statusText, "");
    editor.findPrev(false);
    editor.findPrev(false);
    EXPECT_EQ(at(widget), 8);
    findReplace.find = "(";
    editor.findNext(true);
    EXPECT_EQ(at(widget), 8);
    EXPECT_TRUE(gui.statusText.startsWith("No valid regular expression: "));
}

TEST_F(FindExpressions, replaceAndReplaceAllWithGroupsAreOneStep)
{
    EditorWidget* widget = open("a.psm", "a1 b2\nc3");
    findReplace.find = "([a-z])([0-9])";
    findReplace.replacement = "\\2\\1";
    findReplace.regExp = true;
    editor.findNext(true);
    editor.replace(false);
    EXPECT_EQ(widget->toPlainText(), "1a b2\nc3");
    EXPECT_EQ(widget->textCursor().selectedText(), QString("b2"));
    widget->undo();
    editor.replaceAll(false);
    EXPECT_EQ(widget->toPlainText(), "1a 2b\n3c");
    widget->undo();
    EXPECT_EQ(widget->toPlainText(), "a1 b2\nc3");
}

TEST_F(FindExpressions, inTheSelectionOnly)
{
    EditorWidget* widget = open("a.psm", "ab ab\nab ab");
    QTextCursor cursor = widget->textCursor();
    cursor.setPosition(2);
    cursor.setPosition(8, QTextCursor::KeepAnchor);
    widget->setTextCursor(cursor);
    findReplace.find = "ab";
    findReplace.replacement = "abab";
    findReplace.inSelection = true;
    editor.findPreview();
    EXPECT_EQ(findReplace.result, "2 hits");
    editor.findNext(true);
    // The first search goes on after the selection.
    EXPECT_EQ(gui.statusText, "End of file reached, continuing from the begin...");
    editor.findNext(false);
    EXPECT_EQ(at(widget), 3);
    EXPECT_EQ(findReplace.result, "1 of 2");
    editor.replaceAll(false);
    EXPECT_EQ(widget->toPlainText(), "ab abab\nabab ab");
    findReplace.inSelection = false;
    editor.findPreview();
    EXPECT_EQ(findReplace.result, "6 hits");
}

TEST_F(FindExpressions, previewMarksCountsAndMovesNoCursor)
{
    EditorWidget* widget = open("a.psm", QByteArray("x\n").repeated(500) + "needle\nneedle");
    widget->resize(300, 200);
    widget->show();
    findReplace.find = "needle";
    editor.findPreview();
    EXPECT_EQ(findReplace.result, "2 hits");
    EXPECT_EQ(widget->textCursor().position(), 0);
    EXPECT_FALSE(widget->textCursor().hasSelection());
    EXPECT_GT(widget->verticalScrollBar()->value(), 400);
    EXPECT_FALSE(widget->overlay()->hits().text.isEmpty());
    // The press then finds the first one, as without a preview.
    editor.findNext(true);
    EXPECT_EQ(at(widget), 1000);
    EXPECT_EQ(findReplace.result, "1 of 2");
    editor.findNext(false);
    EXPECT_EQ(findReplace.result, "2 of 2");
    findReplace.find = "nothing";
    editor.findPreview();
    EXPECT_EQ(findReplace.result, "No hit");
    findReplace.find = "(";
    findReplace.regExp = true;
    editor.findPreview();
    EXPECT_EQ(findReplace.result, "Not valid");
    EXPECT_TRUE(widget->overlay()->hits().text.isEmpty());
    findReplace.find = "needle";
    editor.findPreview();
    editor.findExit();
    EXPECT_TRUE(widget->overlay()->hits().text.isEmpty());
}

TEST_F(FindExpressions, readOnlyTextIsNotReplaced)
{
    EditorWidget* widget = open("a.psm", "a1");
    widget->setLocked(true);
    findReplace.find = "[0-9]";
    findReplace.regExp = true;
    editor.findNext(true);
    editor.replace(false);
    editor.replaceAll(false);
    EXPECT_EQ(widget->toPlainText(), "a1");
}

/// What a search in many texts finds, as "path:line:text of the hit".
QStringList found(const sSearch_t& search, const QList<SourceSearch::sSource_t>& sources)
{
    SourceSearch many;
    QStringList all;
    QObject::connect(&many, &SourceSearch::found, &many, [&](const QString& path, const QVector<sFoundLine_t>& lines) {
        for (const sFoundLine_t& line : lines) {
            for (const sHit_t& hit : line.hits)
                all.append(QString("%1:%2:%3").arg(path).arg(line.line).arg(line.text.mid(hit.start, hit.length)));
        }
    });
    QSignalSpy end(&many, &SourceSearch::finished);
    many.start(TextSearch(search), sources);
    EXPECT_TRUE(QTest::qWaitFor([&] { return end.count() > 0; }, 60000));
    EXPECT_FALSE(many.isRunning());
    return all;
}

TEST_F(FindExpressions, manyTextsLineByLine)
{
    const QList<SourceSearch::sSource_t> sources = {
        {"a", true, "load s0\n\n  load s1 load\n"}, {"b", true, ""}, {"c", true, "LOAD"}};
    EXPECT_EQ(found({"load", false, false, false}, sources),
              (QStringList{"a:0:load", "a:2:load", "a:2:load", "c:0:LOAD"}));
    EXPECT_EQ(found({"^load", true, false, true}, sources), QStringList{"a:0:load"});
    EXPECT_EQ(found({"s.$", false, false, true}, sources), QStringList{"a:0:s0"});
    // No hit goes over the end of a line.
    EXPECT_EQ(found({"\\s+", false, false, true}, sources), (QStringList{"a:0: ", "a:2:  ", "a:2: ", "a:2: "}));
    EXPECT_EQ(found({"\\Aload", false, false, true}, sources), (QStringList{"a:0:load", "c:0:LOAD"}));
    EXPECT_EQ(found({"(?<!\\s)load", false, false, true}, sources), (QStringList{"a:0:load", "c:0:LOAD"}));
}

TEST_F(FindExpressions, manyTextsAgreeWithTheirLines)
{
    QString text;
    quint32 state = 7;
    for (int i = 0; i < 30000; ++i) {
        state = state * 1664525u + 1013904223u;
        text += "abc \n"[(state >> 16) % 5];
    }
    for (const sSearch_t& search : {sSearch_t{"ab", false, false, false}, sSearch_t{"^a", false, false, true},
                                    sSearch_t{"b$", false, false, true}, sSearch_t{"a\\s*", false, false, true},
                                    sSearch_t{"[^a]+", false, false, true}, sSearch_t{"ab", false, true, false},
                                    sSearch_t{"\\bab?", false, false, true}}) {
        QStringList expected;
        const QStringList lines = text.split('\n');
        for (int i = 0; i < lines.size(); ++i) {
            for (const QString& hit : hits(search, lines.at(i)))
                expected.append(QString("t:%1:%2").arg(i).arg(hit));
        }
        expected = expected.mid(0, SourceSearch::maxHits);
        const QStringList actual = found(search, {{"t", true, text}});
        EXPECT_EQ(actual.mid(0, expected.size()), expected) << search.text.toStdString();
    }
}

TEST_F(FindExpressions, aSearchCanBeStoppedAndFilesCanBeMissing)
{
    const QString path = dir.filePath("x.psm");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\xef\xbb\xbfload\r\nload");
    file.close();
    EXPECT_EQ(found({"^load$", false, false, true}, {{path, false, QString()}}),
              (QStringList{path + ":0:load", path + ":1:load"}));
    SourceSearch search;
    QSignalSpy failed(&search, &SourceSearch::failed);
    QSignalSpy end(&search, &SourceSearch::finished);
    search.start(TextSearch({"a", false, false, false}),
                 {{"/nowhere", false, QString()}, {dir.path(), false, QString()}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return end.count() > 0; }, 60000));
    EXPECT_EQ(failed.count(), 2);
    EXPECT_TRUE(end.last().first().toBool());
    search.start(TextSearch({"a", false, false, false}), {{"t", true, "a"}});
    search.stop();
    EXPECT_FALSE(end.last().first().toBool());
    EXPECT_EQ(end.count(), 2);
    EXPECT_FALSE(search.isRunning());
}

TEST_F(FindExpressions, tooManyHitsEndTheSearch)
{
    SourceSearch search;
    QSignalSpy end(&search, &SourceSearch::finished);
    search.start(TextSearch({"a", false, false, false}), {{"t", true, QString("a\n").repeated(20000)}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return end.count() > 0; }, 60000));
    EXPECT_FALSE(end.first().first().toBool());
    EXPECT_EQ(search.hits(), SourceSearch::maxHits);
}

/// A panel with the hits of one text.
class SearchPanel : public SourceSearchPanel
{
public:
    SearchPanel(const sSearch_t& search, const QString& text)
    {
        findChild<QLineEdit*>("editSourceFind")->setText(search.text);
        findChild<QCheckBox*>("checkSourceRegExp")->setChecked(search.regExp);
        setListed(this->search());
        QVector<sFoundLine_t> lines;
        const QStringList texts = text.split('\n');
        for (int i = 0; i < texts.size(); ++i)
            lines.append({i, texts.at(i), TextSearch(search).hitsIn(texts.at(i))});
        addSource("/a.psm", "a.psm", lines);
    }
    void replaceBy(const QString& text) { findChild<QLineEdit*>("editSourceReplace")->setText(text); }
    QTreeWidgetItem* source() const { return findChild<QTreeWidget*>("listSourceHits")->topLevelItem(0); }
    bool canReplace() const { return findChild<QPushButton*>("buttonSourceReplace")->isEnabled(); }
};

TEST_F(FindExpressions, thousandsOfHitsInOneLongLine)
{
    // Half a million characters: who looks at the line once for each hit does not come to an end.
    const int count = 10000;
    SearchPanel panel({"a(b)", false, false, true},
                      QString("ab--------------------------------------------------").repeated(count));
    ASSERT_EQ(panel.source()->childCount(), count);
    panel.replaceBy("<\\1>");
    EXPECT_TRUE(panel.source()->child(0)->text(1).startsWith("<b>-----"));
    EXPECT_TRUE(panel.source()->child(1)->text(1).startsWith("ab--"));
    EXPECT_TRUE(panel.source()->child(1)->text(1).contains("-<b>-"));
    EXPECT_TRUE(panel.source()->child(count - 1)->text(1).startsWith("ab---"));
    EXPECT_LE(panel.source()->child(count - 1)->text(1).size(), 400);
    const QVector<sListedHit_t> hits = panel.tickedHits();
    ASSERT_EQ(hits.size(), count);
    EXPECT_EQ(hits.last().hit.replacement, "<b>");
    EXPECT_EQ(hits.last().hit.start, 52 * (count - 1));
    panel.replaceBy("");
    EXPECT_EQ(panel.tickedHits().last().hit.replacement, "");
}

TEST_F(FindExpressions, theButtonKnowsWhetherAnythingIsTicked)
{
    SearchPanel panel({"a", false, false, false}, "a a\nb\na");
    EXPECT_TRUE(panel.canReplace());
    panel.source()->setCheckState(0, Qt::Unchecked);
    EXPECT_FALSE(panel.canReplace());
    EXPECT_TRUE(panel.tickedHits().isEmpty());
    panel.source()->child(1)->setCheckState(0, Qt::Checked);
    EXPECT_TRUE(panel.canReplace());
    ASSERT_EQ(panel.tickedHits().size(), 1);
    EXPECT_EQ(panel.tickedHits().first().hit.start, 2);
    panel.source()->child(1)->setCheckState(0, Qt::Unchecked);
    EXPECT_FALSE(panel.canReplace());
    panel.source()->setCheckState(0, Qt::Checked);
    EXPECT_TRUE(panel.canReplace());
    panel.clear();
    EXPECT_FALSE(panel.canReplace());
}

} // namespace
