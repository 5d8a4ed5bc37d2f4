#pragma once

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "ExampleProjects.h"
#include "ExamplesDialog.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "MyLinkButton.h"
#include "MyLinkList.h"
#include "NewProject.h"
#include "QtPrinters.h"
#include "RecentProjects.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

/// The window as a new user sees it, and what leads on in it.
class StartPage : public MainWindowFixture
{
protected:
    StartPage()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "900");
        start();
    }
    void start()
    {
        makeWindow();
        window->activateWindow();
        settleLayout();
    }

    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    /// The list of links that the user sees: on the page of the project manager, or in the empty centre.
    MyLinkList* links() const
    {
        for (MyLinkList* list : window->findChildren<MyLinkList*>()) {
            if (list->isVisible())
                return list;
        }
        return nullptr;
    }
    QStringList linkTexts() const
    {
        settleLayout();
        return links() != nullptr ? links()->texts() : QStringList();
    }
    /// The grey texts beside the links.
    QStringList hints() const
    {
        QStringList texts;
        for (const QLabel* label : links()->findChildren<QLabel*>("pageHint"))
            texts.append(label->text());
        return texts;
    }
    MyLinkButton* link(const QString& text) const
    {
        settleLayout();
        if (links() == nullptr)
            return nullptr;
        for (MyLinkButton* button : links()->findChildren<MyLinkButton*>()) {
            if (button->text() == text && button->isVisible())
                return button;
        }
        return nullptr;
    }
    /// The next missing step in the status bar; empty if nothing is missing.
    QString nextStep() const
    {
        settleLayout();
        auto* button = window->findChild<MyLinkButton*>("nextStepLink");
        return button != nullptr && button->isVisible() ? button->text() : QString();
    }
    void click(QWidget* widget)
    {
        ASSERT_NE(widget, nullptr);
        ASSERT_TRUE(widget->isVisible()) << qPrintable(widget->objectName());
        ASSERT_TRUE(widget->isEnabled()) << qPrintable(widget->objectName());
        ++clicks;
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier,
                          qobject_cast<QCheckBox*>(widget) != nullptr ? QPoint(8, widget->height() / 2) : QPoint());
    }
    QPushButton* button(const QString& text) const
    {
        for (QPushButton* candidate : window->findChildren<QPushButton*>()) {
            if (candidate->text() == text && candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    QToolButton* tool(const QString& text) const
    {
        settleLayout();
        for (QToolButton* candidate : window->findChildren<QToolButton*>()) {
            if (candidate->defaultAction() != nullptr && candidate->defaultAction()->text() == text &&
                candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    template <class Widget>
    Widget* field(const char* name) const
    {
        return window->findChild<Widget*>(name);
    }
    bool hasMessage(const QString& start) const
    {
        for (const QString& text : messageTexts()) {
            if (text.startsWith(start))
                return true;
        }
        return false;
    }
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// A folder of the test. @return its path
    QString makeDir(const QString& name) const
    {
        QDir().mkpath(folder.filePath(name));
        return folder.filePath(name);
    }
    QString makeProject(const QString& name)
    {
        return writeFile(name, "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo></project>");
    }
    /// Opens the example in this row by keyboard. @return path of its project; empty: the dialog stayed
    QString openExample(int row, const QString& target)
    {
        MyLinkButton* opener = link("Open an example...");
        if (opener == nullptr)
            return QString();
        opener->setFocus();
        ModalAnswers answers({[&](QDialog* box) {
            auto* dialog = qobject_cast<nsModPrj::ExamplesDialog*>(box);
            ASSERT_NE(dialog, nullptr);
            auto* list = dialog->findChild<QListWidget*>("examplesList");
            for (int i = 0; i < row; ++i)
                QTest::keyClick(list, Qt::Key_Down);
            auto* edit = dialog->findChild<QLineEdit*>("examplesFolder");
            edit->selectAll();
            QTest::keyClick(edit, Qt::Key_Delete);
            edit->setText(target); // keys outside of ASCII can not be pressed here
            note = dialog->findChild<QLabel*>("examplesNote")->text();
            QTest::keyClick(edit, Qt::Key_Return);
            if (dialog->isVisible())
                note = dialog->findChild<QLabel*>("examplesNote")->text();
        }});
        QTest::keyClick(opener, Qt::Key_Return);
        EXPECT_EQ(answers.seen(), 1);
        settleLayout();
        return prj()->path();
    }

    /// Past the button beside the path, which the title then follows.
    static void tabToTitle(QWidget* path)
    {
        QTest::keyClick(path, Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "prjMngrNewTitle");
    }

    int clicks = 0;
    QString note; ///< what the dialog of the examples said last
};
