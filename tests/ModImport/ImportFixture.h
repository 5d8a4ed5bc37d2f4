#pragma once

#include "FakeEditorHook.h"
#include "FakeGuiHook.h"
#include "FakeMsgHook.h"
#include "FakePrjHook.h"
#include "FakeSmallHooks.h"
#include "ImportEditorWidget.h"
#include "ImportWidget.h"
#include "ModImport.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace nsModImport;

/// Sources, and a page with the filters that ship.
class ImportFixture : public ::testing::Test
{
protected:
    QString write(const QString& name, const QByteArray& content)
    {
        const QString path = dir.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return path;
    }
    QPushButton* button(const QString& name) { return page->findChild<QPushButton*>(name); }
    ImportEditorWidget* source() { return page->findChild<ImportEditorWidget*>("importSource"); }
    ImportEditorWidget* destination() { return page->findChild<ImportEditorWidget*>("importDestination"); }
    QComboBox* filters() { return page->findChild<QComboBox*>("importFilters"); }
    QString shownPath() { return page->findChild<QLineEdit*>("importPath")->text(); }
    /// Which of the buttons can be pressed, by their first letters.
    QString enabled()
    {
        QString result;
        for (const char* name : {"importRestart", "importConvertLine", "importConvertAll", "importUse"})
            result += button(name)->isEnabled() ? QString(name).mid(6).remove("Convert") : QString();
        return result;
    }
    /// A page with a source and a filter.
    void load(const QByteArray& content, const QString& filter = "KCPSM3")
    {
        page->modMsgHook = &msg;
        ASSERT_TRUE(page->setImportFilter(filter));
        ASSERT_TRUE(page->openFile(write("source.psm", content)));
    }
    QStringList errors() const
    {
        QStringList result;
        for (const FakeMsgHook::Entry& entry : msg.messages()) {
            EXPECT_EQ(entry.type, ModMsgHookIf::eMsgError);
            result.append(entry.text);
        }
        return result;
    }

    QTemporaryDir dir;
    FakeMsgHook msg;
    QPointer<ImportWidget> page = new ImportWidget;
    std::unique_ptr<ImportWidget> owner{page};
};
