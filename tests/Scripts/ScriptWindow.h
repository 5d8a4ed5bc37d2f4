#pragma once

#include "ExampleFolder.h"
#include "MainWindowFixture.h"
#include "ModScript.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include <functional>

/// What the scripts of the tests call, as "test".
class WindowTarget : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void note(const QString& text) { notes.append(text); }
    Q_INVOKABLE void take(QObject* object) { objects.append(object); }
    /// Calls what the test wants to happen while the script is on the stack.
    Q_INVOKABLE void meanwhile()
    {
        if (during)
            during();
    }

    QStringList notes;
    QList<QObject*> objects;
    std::function<void()> during;
};

/// The real window with the project of the example scripts.
class ScriptWindow : public MainWindowFixture
{
protected:
    ScriptWindow()
    {
        copyFolder(NALVO_SOURCE_DIR "/examples/scripts/multiply", projectDir());
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
        script()->registerObject(&target, "test");
        script()->executeScript("function open() { return project.open('" + project() +
                                "'); }\n"
                                "function failure(f) { try { f(); } catch (e) { return '' + e; } return 'none'; }");
    }

    QString project() const { return projectDir() + "/multiply.nalvo"; }
    nsModScript::ModScript* script() const { return module<nsModScript::ModScript>(); }
    bool run(const QString& text) { return script()->executeScript(text); }
    /// Runs a script that must not fail. @return what it has noted
    QStringList notes(const QString& text)
    {
        target.notes.clear();
        EXPECT_TRUE(run(text)) << qPrintable(messageTexts().join('\n'));
        return target.notes;
    }
    /// The action of a menu.
    QAction* action(const QString& text) const
    {
        for (QAction* menu : window->menuBar()->actions()) {
            for (QAction* entry : menu->menu()->actions()) {
                if (entry->text() == text)
                    return entry;
            }
        }
        ADD_FAILURE() << "no action " << qPrintable(text);
        return nullptr;
    }
    /// The user triggers an action.
    void trigger(const QString& text)
    {
        QAction* found = action(text);
        ASSERT_NE(found, nullptr);
        ASSERT_TRUE(found->isEnabled()) << qPrintable(text);
        found->trigger();
    }
    bool hasMessage(const QString& start) const
    {
        for (const QString& text : messageTexts()) {
            if (text.startsWith(start))
                return true;
        }
        return false;
    }

    WindowTarget target;
};
