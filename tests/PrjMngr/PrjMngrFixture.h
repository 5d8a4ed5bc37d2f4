#pragma once

#include "AppCfgOnDisk.h"
#include "FakeHooks.h"
#include "PageFixture.h"
#include "QtPrinters.h"

#include "ModPrj.h"
#include "PrjMngrListElementWidget.h"
#include "PrjMngrListWidget.h"
#include "PrjMngrWidget.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>

/// The project module with its manager on the screen, reached as its user reaches it.
class PrjMngrFixture : public PageFixture
{
protected:
    PrjMngrFixture()
    {
        prj.modMsgHook = &msg;
        prj.modGuiHook = &gui;
        prj.modHlpHook = &hlp;
        action.registerPlugin(static_cast<ModActionPluginIf*>(&prj));
        prj.modInit();
        pages.resize(860, 620);
    }
    /// The program starts with what is stored.
    void start()
    {
        disk.start(&prj);
        prj.modRun();
        bringUp();
    }
    /// Shows the page that the module has put into the centre.
    void bringUp()
    {
        page = qobject_cast<nsModPrj::PrjMngrWidget*>(gui.widgetNamed("Project Manager"));
        if (page != nullptr)
            show(page);
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    QString makePrj(const QString& name, const QString& title = QString(), const QString& version = QString(),
                    const QString& comment = QString())
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QStringLiteral("<project version=\"3\"><PrjInfo><title>%1</title><version>%2</version>"
                                  "<comment>%3</comment></PrjInfo></project>")
                       .arg(title, version, comment)
                       .toUtf8());
        return path(name);
    }
    QString makeBroken(const QString& name)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<project><a></project>");
        return path(name);
    }
    static QByteArray content(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTabWidget* tabs() const { return page->findChild<QTabWidget*>("prjMngrTabs"); }
    QPushButton* button(const QString& text, const QWidget* parent = nullptr) const
    {
        for (QPushButton* candidate : (parent != nullptr ? parent : page.data())->findChildren<QPushButton*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        ADD_FAILURE() << "no button " << qPrintable(text);
        return nullptr;
    }
    void press(const QString& text, const QWidget* parent = nullptr) const
    {
        QCoreApplication::processEvents(); // a new card is shown by its layout
        QPushButton* target = button(text, parent);
        ASSERT_TRUE(target->isVisible() && target->isEnabled()) << qPrintable(text);
        QTest::mouseClick(target, Qt::LeftButton);
    }
    /// Field of a path on one of the two tabs, with the tab in front.
    QLineEdit* pathEdit(const char* selector) const
    {
        return page->findChild<QWidget*>(selector)->findChild<QLineEdit*>();
    }
    static void typeInto(QLineEdit* edit, const QString& text)
    {
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    void selectTab(int index) const
    {
        QTabBar* bar = tabs()->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
        ASSERT_EQ(tabs()->currentIndex(), index);
    }
    QStringList listed() const { return page->listWidget()->prjCollection(); }
    nsModPrj::PrjMngrListElementWidget* card(const QString& file) const
    {
        QCoreApplication::processEvents();
        for (auto* element : page->findChildren<nsModPrj::PrjMngrListElementWidget*>()) {
            if (element->prjFile() == file && element->isVisible())
                return element;
        }
        return nullptr;
    }
    QString cardText(const QString& file, const char* name) const
    {
        return card(file)->findChild<QLabel*>(name)->text();
    }
    QAction* prjAction(int index) { return prj.menuActions(ModActionHookIf::eActionClassConfiguration).value(index); }

    QTemporaryDir folder;
    AppCfgOnDisk disk;
    FakeMsgHook msg;
    FakeGuiHook gui;
    FakeHlpHook hlp;
    FakeActionHook action;
    nsModPrj::ModPrj prj;
    QPointer<nsModPrj::PrjMngrWidget> page;
};
