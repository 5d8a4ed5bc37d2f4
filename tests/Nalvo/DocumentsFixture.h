#pragma once

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "EditorConfig.h"
#include "EditorWidget.h"
#include "FileListWidget.h"
#include "ModAsmFe.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModSourcesHookIf.h"
#include "QtPrinters.h"
#include "QuickOpen.h"
#include "SplashScreen.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

/// A project of three sources in the window, with what a user does to documents, tabs and the list of files.
class DocumentsInWindow : public MainWindowFixture
{
protected:
    DocumentsInWindow()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "900");
        makeWindow();
        window->activateWindow();
        writeFile("a.psm", "alpha:  LOAD s0, 1\n        JUMP alpha\n");
        writeFile("b.psm", "beta:   JUMP beta\n");
        writeFile("c.psm", "gamma:  JUMP gamma\n");
        const QString file = writeFile(
            "files.nalvo", "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo><sources><srcFiles>"
                           "a.psm:b.psm:c.psm</srcFiles></sources><ModProcessor><processor>Xilinx PicoBlaze 3"
                           "</processor></ModProcessor><AsmFe><target><hex><en>1</en><outputFile>out.hex</outputFile>"
                           "</hex></target></AsmFe></project>");
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(file));
        settleLayout();
    }

    QString path(const QString& name) const { return projectDir() + '/' + name; }
    ModEditorHookIf* editor() const { return module<ModEditorHookIf>(); }
    void openAll()
    {
        for (const char* name : {"a.psm", "b.psm", "c.psm"})
            ASSERT_TRUE(editor()->openFile(path(name)));
        settleLayout();
    }
    QTabWidget* tabs() const { return window->findChild<QTabWidget*>("widgetAreaTabs"); }
    QString current() const { return tabs()->tabText(tabs()->currentIndex()); }
    QStringList pages() const
    {
        QStringList names;
        for (int i = 0; i < tabs()->count(); ++i)
            names.append(tabs()->tabText(i));
        return names;
    }
    QPoint tabPlace(int index) const { return tabs()->tabBar()->tabRect(index).center(); }
    nsModEditor::EditorWidget* document() const
    {
        return qobject_cast<nsModEditor::EditorWidget*>(tabs()->currentWidget());
    }
    /// Opens the menu of a tab and triggers its entry.
    void chooseOfTab(int index, const QString& text)
    {
        emit tabs()->tabBar()->customContextMenuRequested(tabPlace(index));
        chooseOf("tabMenu", text);
    }
    void chooseOf(const char* name, const QString& text)
    {
        QMenu* menu = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == name && widget->isVisible())
                menu = qobject_cast<QMenu*>(widget);
        }
        ASSERT_NE(menu, nullptr) << name;
        for (QAction* action : menu->actions()) {
            if (action->text().remove('&') != text)
                continue;
            ASSERT_TRUE(action->isEnabled()) << qPrintable(text);
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
            settleLayout();
            return;
        }
        ADD_FAILURE() << "no entry " << qPrintable(text);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget* focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::keyClick(focus, key, modifiers);
        settleLayout();
    }
    nsModSrcNavi::FileListWidget* files() const { return window->findChild<nsModSrcNavi::FileListWidget*>(); }
    QTreeWidget* tree() const { return files()->findChild<QTreeWidget*>("fileListTree"); }
    void showFiles()
    {
        module<ModGuiHookIf>()->setCurrentWidget(files());
        settleLayout();
    }
    /// Lines of the panel, as "name: state".
    QStringList lines() const
    {
        settleLayout();
        QStringList result;
        for (QTreeWidgetItemIterator it(tree()); *it != nullptr; ++it) {
            const QString state = (*it)->text(1);
            result.append(state.isEmpty() ? (*it)->text(0) : (*it)->text(0) + ": " + state);
        }
        return result;
    }
    QStringList sources() const
    {
        QStringList names;
        for (const QString& file : module<ModSourcesHookIf>()->files())
            names.append(QFileInfo(file).fileName());
        return names;
    }
    QToolButton* panelButton(const char* name) const { return files()->findChild<QToolButton*>(name); }
    QAction* menuEntry(const QString& menu, const QString& text) const
    {
        for (const QAction* top : window->menuBar()->actions()) {
            if (top->text().remove('&') != menu || top->menu() == nullptr)
                continue;
            for (QAction* entry : top->menu()->actions()) {
                if (entry->text().remove('&') == text)
                    return entry;
            }
        }
        return nullptr;
    }
    QToolButton* tool(const QString& text) const
    {
        settleLayout();
        for (QToolButton* button : window->findChildren<QToolButton*>()) {
            if (button->defaultAction() != nullptr && button->defaultAction()->text() == text && button->isVisible())
                return button;
        }
        return nullptr;
    }
    /// Types into quick open. @return the names that it lists; the first is gone to
    QStringList quickOpen(const QString& typed, int down = 0)
    {
        QStringList names;
        ModalAnswers answers({[&](QDialog* box) {
            auto* edit = box->findChild<QLineEdit*>("quickOpenEdit");
            ASSERT_NE(edit, nullptr);
            QTest::keyClicks(edit, typed);
            const auto* list = box->findChild<QListWidget*>("quickOpenList");
            for (int i = 0; i < list->count(); ++i)
                names.append(list->item(i)->data(Qt::UserRole).toString());
            if (typed == "a")
                screenshot("quick-open", box);
            for (int i = 0; i < down; ++i)
                QTest::keyClick(edit, Qt::Key_Down);
            QTest::keyClick(edit, Qt::Key_Return);
        }});
        QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(answers.seen(), 1);
        // A window manager would do this when a dialog closes.
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
        settleLayout();
        return names;
    }
};
