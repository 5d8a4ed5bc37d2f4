// Actions, status bar and tips.

#include "EditorActionsEdit.h"
#include "EditorActionsFile.h"
#include "EditorActionsSim.h"
#include "EditorStatusBar.h"
#include "EditorTipManager.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextBrowser>

/// Outside all namespaces, as the macro demands.
static void initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

namespace {

using namespace nsModEditor;

struct Row
{
    int value; ///< -1 for a separator
    QString text;
    QString toolTip;
    QKeySequence key;
};

void expectRows(const QList<QAction*>& actions, const QList<Row>& rows)
{
    ASSERT_EQ(actions.size(), rows.size());
    for (int index = 0; index < rows.size(); ++index) {
        const Row& row = rows[index];
        const QAction* action = actions[index];
        EXPECT_EQ(action->isSeparator(), row.value < 0) << index;
        EXPECT_EQ(action->data().isValid(), row.value >= 0) << index;
        if (row.value < 0)
            continue;
        EXPECT_EQ(action->data().toInt(), row.value);
        EXPECT_EQ(action->text(), row.text);
        EXPECT_EQ(action->toolTip(), row.toolTip);
        EXPECT_EQ(action->shortcut().toString(), row.key.toString()) << row.text.toStdString();
        EXPECT_FALSE(action->isCheckable());
    }
}

QList<int> enabledOf(const QList<QAction*>& actions)
{
    QList<int> values;
    for (const QAction* action : actions) {
        if (!action->isSeparator() && action->isEnabled())
            values.append(action->data().toInt());
    }
    return values;
}

/// Texts of the actions with a picture; each can be drawn.
QStringList picturedOf(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions) {
        if (!action->icon().isNull() && !action->icon().pixmap(24, 24).isNull())
            texts.append(action->text());
    }
    return texts;
}

class EditorActions : public ::testing::Test
{
protected:
    void SetUp() override { initResources(); }
};

class TipManager : public EditorActions
{
};

const Row separator{-1, {}, {}, {}};

TEST_F(EditorActions, File)
{
    EditorActionsFile actions(nullptr);
    expectRows(actions.menuActions(), {
                                          {0, "New...", "New document", QKeySequence::New},
                                          {1, "Open...", "Open document", QKeySequence::Open},
                                          separator,
                                          {2, "Save all", "Save all documents", QKeySequence::Save},
                                          {3, "Save", "Save document", {}},
                                          {4, "Save as...", "Save document as", {}},
                                          separator,
                                          {5, "Reload all", "Reload all documents", {}},
                                          {6, "Reload", "Reload current document", QKeySequence::Refresh},
                                          separator,
                                          {7, "Print...", "Print document", {}},
                                          separator,
                                          {8, "Close", "Close document", QKeySequence::Close},
                                          {9, "Close all", "Close all documents", {}},
                                          {10, "Close all other documents", "Close all other documents", {}},
                                          separator,
                                      });
    EXPECT_EQ(enabledOf(actions.toolBarActions()), (QList<int>{0, 1, 3}));
    EXPECT_EQ(picturedOf(actions.menuActions()).size(), 11);
    actions.setEnabled(false);
    EXPECT_TRUE(enabledOf(actions.menuActions()).isEmpty());
    actions.setEnabled(EditorActionsFile::eActionNew, true);
    actions.setEnabled(EditorActionsFile::eActionPrint, true);
    EXPECT_EQ(enabledOf(actions.menuActions()), (QList<int>{0, 7}));
    for (const QAction* action : actions.menuActions()) {
        EXPECT_FALSE(action->isSeparator() && action->isEnabled());
    }
    actions.setEnabled(true);
    QList<int> values;
    QObject::connect(&actions, QOverload<EditorActionsFile::eAction_t>::of(&EditorActionsFile::triggered),
                     [&](EditorActionsFile::eAction_t action) { values.append(action); });
    for (QAction* action : actions.menuActions())
        action->trigger();
    EXPECT_EQ(values, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(EditorActions, Edit)
{
    EditorActionsEdit actions(nullptr);
    expectRows(actions.menuActions(), {
                                          {0, "Undo...", "Undo", QKeySequence::Undo},
                                          {1, "Redo...", "Redo", QKeySequence::Redo},
                                          separator,
                                          {2, "Indent", "Indent", QKeySequence("Tab")},
                                          {3, "Deindent", "Deindent", QKeySequence("Shift+Tab")},
                                          separator,
                                          {4, "Comment out", "Comment out", QKeySequence("Alt+C")},
                                          {5, "Comment in", "Comment in", QKeySequence("Shift+Alt+C")},
                                          separator,
                                          {6, "Duplicate line", "Duplicate line", QKeySequence("Ctrl+D")},
                                          separator,
                                          {7, "Move line up", "Move line up", QKeySequence("Ctrl+Shift+Up")},
                                          {8, "Move line down", "Move line down", QKeySequence("Ctrl+Shift+Down")},
                                          separator,
                                          {9, "Reset zoom", "Font size as in the settings", QKeySequence("Ctrl+0")},
                                          separator,
                                      });
    EXPECT_EQ(enabledOf(actions.toolBarActions()), (QList<int>{0, 1}));
    EXPECT_EQ(picturedOf(actions.menuActions()), (QStringList{"Undo...", "Redo...", "Comment out"}));
    actions.setEnabled(false);
    actions.setEnabled(EditorActionsEdit::eActionUndo, true);
    EXPECT_EQ(enabledOf(actions.menuActions()), QList<int>{0});
    for (const QAction* action : actions.menuActions()) {
        EXPECT_FALSE(action->isSeparator() && action->isEnabled());
    }
    actions.setEnabled(true);
    QList<int> values;
    QObject::connect(&actions, QOverload<EditorActionsEdit::eAction_t>::of(&EditorActionsEdit::triggered),
                     [&](EditorActionsEdit::eAction_t action) { values.append(action); });
    for (QAction* action : actions.menuActions())
        action->trigger();
    EXPECT_EQ(values, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST_F(EditorActions, Sim)
{
    EditorActionsSim actions(nullptr);
    expectRows(actions.menuActions(),
               {
                   {0, "Clear all breakpoints", "Clear all breakpoints", {}},
                   {1, "Set simulator start address to zero", "Set simulator start address to zero", {}},
               });
    EXPECT_TRUE(actions.toolBarActions().isEmpty());
    actions.setEnabled(false);
    actions.setEnabled(EditorActionsSim::eActionClearStartPointer, true);
    EXPECT_EQ(enabledOf(actions.menuActions()), QList<int>{1});
    actions.setEnabled(true);
    QList<int> values;
    QObject::connect(&actions, QOverload<EditorActionsSim::eAction_t>::of(&EditorActionsSim::triggered),
                     [&](EditorActionsSim::eAction_t action) { values.append(action); });
    for (QAction* action : actions.menuActions())
        action->trigger();
    EXPECT_EQ(values, (QList<int>{0, 1}));
}

TEST(EditorStatusBar, ShowsFontSizeAndMode)
{
    EditorStatusBar bar;
    QStringList titles;
    for (const QLabel* label : bar.findChildren<QLabel*>("statusBarTitle"))
        titles.append(label->text());
    EXPECT_EQ(titles, (QStringList{"Font size:", "Mode:", "Line:", "File:"}));
    auto* size = bar.findChild<QLabel*>("editorStatusBarFontSize");
    auto* mode = bar.findChild<QLabel*>("editorStatusBarMode");
    ASSERT_NE(size, nullptr);
    ASSERT_NE(mode, nullptr);
    bar.setFontSize(12);
    EXPECT_EQ(size->text(), QString("12 pt"));
    EXPECT_EQ(mode->text(), QString("Insert"));
    bar.setOverwrite(true);
    EXPECT_EQ(mode->text(), QString("Overwrite"));
    bar.setOverwrite(false);
    EXPECT_EQ(mode->text(), QString("Insert"));
    // In one row, and nothing moves with the values.
    bar.resize(600, 24);
    bar.show();
    EXPECT_EQ(size->y(), mode->y());
    EXPECT_LT(size->x(), mode->x());
    const int x = mode->x();
    bar.setFontSize(100);
    bar.layout()->activate();
    EXPECT_EQ(mode->x(), x);
}

TEST_F(TipManager, ComposesTheTip)
{
    EditorTipManager tip;
    QString word = "any";
    ASSERT_TRUE(tip.setTip(word));
    const QString text = tip.findChild<QTextBrowser*>()->toPlainText();
    for (const char* part :
         {"Titel", "A short description.", "Input values", "REG_work1", "REG_work5", "Eingangsregister 1",
          "Eingangsregister 5", "Output values", "REG_retVal", "Ausgangsregister"})
        EXPECT_TRUE(text.contains(part)) << part;
    EXPECT_FALSE(text.contains("{content}"));
    EXPECT_LT(text.indexOf("Input values"), text.indexOf("Output values"));
    EXPECT_FALSE(tip.isVisible());
}

TEST_F(TipManager, ValuesStandInATable)
{
    EditorTipManager tip;
    QHash<QString, QString> none;
    EXPECT_EQ(tip.setTipArgs("Title", none), QString());
    QHash<QString, QString> args{{"b", "x %1"}, {"a", "<y>"}};
    EXPECT_EQ(tip.setTipArgs("Title", args),
              QString("<h2>Title</h2><p><table>"
                      "<tr><td class=\"arg\"><li>a</li></td> <td class=\"argVal\">&lt;y&gt;</td></tr>"
                      "<tr><td class=\"arg\"><li>b</li></td> <td class=\"argVal\">x %1</td></tr>"
                      "</table></p>"));
}

} // namespace
