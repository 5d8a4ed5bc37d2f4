// The window without a mouse and without eyes: names of controls, mnemonics, the order of the Tab key.

#include "MainWindowFixture.h"

#include "ModConfigHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

namespace {

class Access : public MainWindowFixture
{
protected:
    Access()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
        writeFile("main.psm", "#SET MAIN::Type, reg\nstart: LOAD s0, 0x12\n       OUTPUT s0, 1\n       JUMP start\n");
        const QString file =
            writeFile("p.nalvo", "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo><sources><srcFiles>main.psm"
                                 "</srcFiles></sources><ModProcessor><processor>Xilinx PicoBlaze 3</processor>"
                                 "</ModProcessor></project>");
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->open(file));
        module<ModEditorHookIf>()->openFile(projectDir() + "/main.psm");
        settleLayout();
    }

    /// All entries of a menu, those of its sub menus included.
    static QList<QAction*> entries(const QMenu* menu)
    {
        QList<QAction*> result;
        for (QAction* action : menu->actions()) {
            result.append(action);
            if (action->menu() != nullptr)
                result.append(entries(action->menu()));
        }
        return result;
    }
    bool trigger(const QString& text) const
    {
        for (const QAction* bar : window->menuBar()->actions()) {
            for (QAction* action : entries(bar->menu())) {
                if (action->text() == text && action->isEnabled()) {
                    action->trigger();
                    settleLayout();
                    return true;
                }
            }
        }
        return false;
    }

    /// Parts of a control that stand for nothing of their own.
    static bool isPart(const QWidget* widget)
    {
        if (widget->objectName().startsWith("qt_"))
            return true;
        for (const QWidget* parent = widget->parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
            if (qobject_cast<const QComboBox*>(parent) != nullptr ||
                qobject_cast<const QAbstractSpinBox*>(parent) != nullptr)
                return true;
            const auto* area = qobject_cast<const QAbstractScrollArea*>(parent);
            if (area != nullptr && area->viewport() == widget)
                return true;
        }
        return false;
    }
    static QString nameOf(QWidget* widget)
    {
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        return face != nullptr ? face->text(QAccessible::Name).trimmed() : QString();
    }
    void expectNames(const char* state) const
    {
        int seen = 0;
        for (QWidget* widget : window->findChildren<QWidget*>()) {
            if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0 || isPart(widget))
                continue;
            ++seen;
            EXPECT_FALSE(nameOf(widget).isEmpty())
                << state << ": " << widget->metaObject()->className() << " \"" << qPrintable(widget->objectName())
                << "\" in \"" << qPrintable(widget->parentWidget()->objectName()) << '"';
        }
        EXPECT_GT(seen, 0) << state;
    }
    static QChar mnemonic(const QString& text)
    {
        for (int i = 0; i + 1 < text.size(); ++i) {
            if (text.at(i) == '&' && text.at(++i) != '&')
                return text.at(i).toLower();
        }
        return {};
    }
    void expectMnemonics(const QWidget* root, const char* state) const
    {
        QHash<QChar, QString> seen;
        for (const QWidget* widget : root->findChildren<QWidget*>()) {
            if (!widget->isVisible())
                continue;
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const auto* label = qobject_cast<const QLabel*>(widget);
            const QString text = button != nullptr ? button->text() : label != nullptr ? label->text() : QString();
            const QChar key = Qt::mightBeRichText(text) ? QChar() : mnemonic(text);
            if (key.isNull() || (label != nullptr && label->buddy() == nullptr))
                continue;
            EXPECT_FALSE(seen.contains(key)) << state << ": " << qPrintable(text + " and " + seen.value(key));
            seen.insert(key, text);
        }
    }
    /// From one field to the next, the Tab key goes down or to the right.
    static void expectReadingOrder(QWidget* page, const char* state)
    {
        QList<QWidget*> order;
        // The page itself can stand anywhere in the chain.
        for (QWidget* widget = page->window()->nextInFocusChain(); widget != page->window();
             widget = widget->nextInFocusChain()) {
            if (widget != page && page->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() &&
                (widget->focusPolicy() & Qt::TabFocus) != 0 && !isPart(widget))
                order.append(widget);
        }
        for (int i = 1; i < order.size(); ++i) {
            const QRect before(order.at(i - 1)->mapTo(page, QPoint()), order.at(i - 1)->size());
            const QRect after(order.at(i)->mapTo(page, QPoint()), order.at(i)->size());
            if (order.at(i - 1)->isAncestorOf(order.at(i)))
                continue;
            const bool isBelow = after.center().y() > before.center().y();
            const bool isRight = after.left() >= before.right() - 1;
            EXPECT_TRUE(isBelow || isRight)
                << state << ": " << qPrintable(order.at(i - 1)->objectName() + " then " + order.at(i)->objectName());
        }
    }
    static QStringList titles(const QListWidget* list)
    {
        QStringList result;
        for (int row = 0; row < list->count(); ++row)
            result.append(list->item(row)->text());
        return result;
    }
};

} // namespace

TEST_F(Access, everyControlOfTheWindowHasAName)
{
    expectNames("document");
    ASSERT_TRUE(trigger("Find"));
    expectNames("find");
    ASSERT_TRUE(trigger("Replace"));
    expectNames("replace");
    ASSERT_TRUE(trigger("Run assembler"));
    ASSERT_TRUE(trigger("Enable/disable simulator"));
    expectNames("simulation");
}

TEST_F(Access, everyControlOfTheOtherPagesHasAName)
{
    ASSERT_TRUE(trigger("Import files..."));
    expectNames("import");
    ASSERT_TRUE(trigger("New project...") || trigger("Open project..."));
    expectNames("project manager");
}

TEST_F(Access, everyPageOfTheSettingsCanBeUsedByKeys)
{
    module<ModConfigHookIf>()->openDialog();
    auto* list = window->findChild<QListWidget*>("configList");
    ASSERT_NE(list, nullptr);
    const QStringList pages = titles(list);
    EXPECT_EQ(pages.size(), 12) << pages.join(", ").toStdString();
    for (const QString& page : pages) {
        ASSERT_TRUE(module<ModConfigHookIf>()->selectDialogPageByTitle(page));
        settleLayout();
        const std::string name = page.toStdString();
        expectNames(name.c_str());
        QWidget* dialog = window->findChild<QWidget*>("configDialog");
        expectMnemonics(dialog, name.c_str());
        for (QWidget* content : dialog->findChildren<QWidget*>("pageContent")) {
            if (content->isVisible())
                expectReadingOrder(content, name.c_str());
        }
    }
}

TEST_F(Access, theTabKeyGoesThroughEveryPanelAndPageAsItIsRead)
{
    // What comes by a command: usages, find in sources, the panels of the simulator.
    auto* document = qobject_cast<QPlainTextEdit*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    ASSERT_NE(document, nullptr);
    document->setFocus();
    document->moveCursor(QTextCursor::Down);
    for (const char* command : {"Run assembler", "Find usages", "Find in sources...", "Files of the project",
                                "Enable/disable simulator", "Replace"})
        EXPECT_TRUE(trigger(command)) << command;
    QStringList panels;
    const auto expectOrder = [&panels](QWidget* panel, const QString& title) {
        settleLayout();
        expectReadingOrder(panel, qPrintable(title));
        panels.append(title);
    };
    const auto expectDocks = [&] {
        for (QDockWidget* dock : window->findChildren<QDockWidget*>()) {
            auto* tabs = dock->findChild<QTabWidget*>();
            if (!dock->isVisible())
                continue;
            if (tabs == nullptr) {
                expectOrder(dock->widget(), dock->windowTitle());
                continue;
            }
            for (int index = 0; index < tabs->count(); ++index) {
                tabs->setCurrentIndex(index);
                expectOrder(tabs->widget(index), tabs->tabText(index));
            }
        }
    };
    expectDocks();
    auto* centre = window->findChild<QTabWidget*>("widgetAreaTabs");
    EXPECT_TRUE(trigger("Import files..."));
    EXPECT_TRUE(trigger("New project...") || trigger("Open project..."));
    for (int index = 0; index < centre->count(); ++index) {
        centre->setCurrentIndex(index);
        expectOrder(centre->widget(index), centre->tabText(index));
    }
    EXPECT_GE(panels.size(), 12) << qPrintable(panels.join(", "));
}

TEST_F(Access, theListOfProcessorsShowsAllOfThem)
{
    module<ModConfigHookIf>()->openDialog("Processor");
    auto* box = window->findChild<QComboBox*>("processor");
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(box->isVisible());
    box->showPopup();
    settleAnimations();
    screenshot("config-processor-list", box->view()->window());
    const QRect seen = box->view()->viewport()->rect();
    for (int row = 0; row < box->count(); ++row) {
        const QRect item = box->view()->visualRect(box->model()->index(row, 0));
        EXPECT_GE(item.top(), seen.top()) << qPrintable(box->itemText(row));
        EXPECT_LE(item.bottom(), seen.bottom()) << qPrintable(box->itemText(row));
        const int text = box->view()->fontMetrics().horizontalAdvance(box->itemText(row));
        EXPECT_LE(item.left() + text, seen.right()) << qPrintable(box->itemText(row));
    }
    box->hidePopup();
}

TEST_F(Access, theFrameOfACheckBoxGoesAroundItsText)
{
    module<ModConfigHookIf>()->openDialog();
    int seen = 0;
    for (const QString& page : titles(window->findChild<QListWidget*>("configList"))) {
        module<ModConfigHookIf>()->selectDialogPageByTitle(page);
        settleLayout();
        for (QCheckBox* box : window->findChild<QWidget*>("configDialog")->findChildren<QCheckBox*>()) {
            if (!box->isVisible())
                continue;
            ++seen;
            EXPECT_LE(box->width(), box->sizeHint().width() + 2) << qPrintable(page + ": " + box->objectName());
        }
    }
    EXPECT_GT(seen, 5);
}

TEST_F(Access, noTwoEntriesOfAMenuHaveOneMnemonicOrKey)
{
    QHash<QString, QString> keys;
    for (const QAction* bar : window->menuBar()->actions()) {
        QHash<QChar, QString> seen;
        for (const QAction* action : bar->menu()->actions()) {
            const QChar key = mnemonic(action->text());
            if (!key.isNull()) {
                EXPECT_FALSE(seen.contains(key)) << qPrintable(action->text() + " and " + seen.value(key));
                seen.insert(key, action->text());
            }
        }
        for (const QAction* action : entries(bar->menu())) {
            for (const QKeySequence& sequence : action->shortcuts()) {
                const QString text = sequence.toString();
                // For some desktops it is the next hit, too; in a document it leads to a line.
                EXPECT_TRUE(!keys.contains(text) || text == "Ctrl+G")
                    << qPrintable(text + ": " + action->text() + " and " + keys.value(text));
                keys.insert(text, action->text());
            }
        }
    }
    EXPECT_GT(keys.size(), 15);
}

TEST_F(Access, everyActionCanBeReachedByKeys)
{
    // What stands in a tool bar stands in a menu, which Alt and a letter open.
    QSet<QAction*> inMenus;
    for (const QAction* bar : window->menuBar()->actions()) {
        for (QAction* action : entries(bar->menu()))
            inMenus.insert(action);
    }
    for (const QToolBar* bar : window->findChildren<QToolBar*>()) {
        for (QAction* action : bar->actions()) {
            if (!action->isSeparator()) {
                EXPECT_TRUE(inMenus.contains(action)) << qPrintable(action->text());
            }
        }
    }
}
