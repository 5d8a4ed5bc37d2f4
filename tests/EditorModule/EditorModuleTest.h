#pragma once

#include "EditorWidget.h"
#include "FakeCfgAppHook.h"
#include "FakeGuiHook.h"
#include "FakeMsgHook.h"
#include "FakePrjHook.h"
#include "FakeSourcesHook.h"
#include "ModClipboardHookIf.h"
#include "ModEditor.h"
#include "ModFindReplaceHookIf.h"
#include "ModalHelper.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

/// Stands in for find and replace: parameters as knobs.
class FakeFindReplaceHook : public ModFindReplaceHookIf
{
public:
    void registerPluginWidget(ModFindReplacePluginIf* plugin, QWidget* widget, int features) override
    {
        plugin->modFindReplaceHook = this;
        widgets.insert(widget, features);
    }
    void unregisterPluginWidget(QWidget* widget) override { widgets.remove(widget); }
    QString findString() override { return find; }
    QString replaceString() override { return replacement; }
    bool isCaseSensitive() override { return caseSensitive; }
    bool isWholeWords() override { return wholeWords; }
    bool isRegExp() override { return regExp; }
    bool isInSelection() override { return inSelection; }
    void setFindResult(const QString& text, const QString&) override { result = text; }

    QHash<QWidget*, int> widgets;
    bool regExp = false;
    bool inSelection = false;
    QString result;
    QString find;
    QString replacement;
    bool caseSensitive = false;
    bool wholeWords = false;
};

/// Stands in for the clipboard routing: which features are on.
class FakeClipboardHook : public ModClipboardHookIf
{
public:
    void setFeatureEnable(eClipboardFeature_t features, bool enable) override
    {
        enabled = enable ? enabled | features : enabled & ~int(features);
    }
    void registerPluginWidget(ModClipboardPluginIf* plugin, QWidget* widget) override
    {
        plugin->modClipboardHook = this;
        widgets.append(widget);
    }
    void unregisterPluginWidget(QWidget* widget) override { widgets.removeAll(widget); }

    int enabled = 0;
    QList<QWidget*> widgets;
};

/// The editor module in a project folder of its own, with fakes around it.
class EditorModuleTest : public ::testing::Test
{
protected:
    EditorModuleTest()
    {
        // Open to the ordinary user as well that some tests become.
        EXPECT_TRUE(QDir().mkpath(dataDir()));
        EXPECT_EQ(chmod(dataDir().toLocal8Bit().constData(), 0777), 0);
        EXPECT_EQ(chmod(data.path().toLocal8Bit().constData(), 0755), 0);
        qputenv("XDG_DATA_HOME", dataDir().toLocal8Bit());
        msg.attach(static_cast<ModMsgPluginIf*>(&editor));
        gui.registerPlugin(static_cast<ModGuiPluginIf*>(&editor));
        sources.registerPlugin(&editor);
        editor.modPrjHook = &prj;
        editor.modCfgAppHook = &cfg;
        editor.modFindReplaceHook = &findReplace;
        editor.modClipboardHook = &clipboard;
        prj.path = dir.path() + "/test.nalvo";
        editor.modInit();
        editor.modInitIntermod();
        editor.prjOpen();
    }
    ~EditorModuleTest() override
    {
        // Nobody is asked any more.
        for (nsModEditor::EditorWidget* widget : editor.editorWidgets())
            widget->clearModified();
        editor.modExitIntermod();
        editor.modExit();
    }

    QString path(const QString& name) const { return dir.path() + '/' + name; }
    QString write(const QString& name, const QByteArray& content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path(name);
    }
    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    nsModEditor::EditorWidget* open(const QString& name, const QByteArray& content = "LOAD s0, 1\n")
    {
        EXPECT_TRUE(editor.openFile(write(name, content)));
        return document(name);
    }
    nsModEditor::EditorWidget* document(const QString& name) const
    {
        for (nsModEditor::EditorWidget* widget : editor.editorWidgets()) {
            if (widget->filePath() == path(name))
                return widget;
        }
        return nullptr;
    }
    /// Types at the start of a document, as a user does.
    static void type(nsModEditor::EditorWidget* widget, const QString& text)
    {
        widget->setFocus();
        QTest::keyClicks(widget, text);
    }
    QAction* action(ModActionHookIf::eActionClass_t actionClass, const QString& text)
    {
        for (QAction* candidate : editor.menuActions(actionClass)) {
            if (candidate->text() == text)
                return candidate;
        }
        ADD_FAILURE() << "there is no action " << text.toStdString();
        return nullptr;
    }
    bool enabled(const QString& text) { return action(ModActionHookIf::eActionClassFile, text)->isEnabled(); }
    /// The page of the centre changes, as the window reports it.
    void focus(QWidget* widget)
    {
        gui.setCurrentWidget(widget);
        editor.setFocus(ModGuiHookIf::eLocationTabs, &editor, widget);
    }

    QString dataDir() const { return data.path() + "/data"; }

    QTemporaryDir dir;
    QTemporaryDir data; ///< of the user, beside the folder of the project
    FakeMsgHook msg;
    FakeGuiHook gui;
    FakePrjHook prj;
    FakeCfgAppHook cfg;
    FakeSourcesHook sources;
    FakeFindReplaceHook findReplace;
    FakeClipboardHook clipboard;
    nsModEditor::ModEditor editor;
};

/// Presses a button of a message box.
inline std::function<void(QDialog*)> answer(QMessageBox::StandardButton button)
{
    return [button](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        ASSERT_NE(box, nullptr);
        box->button(button)->click();
    };
}
