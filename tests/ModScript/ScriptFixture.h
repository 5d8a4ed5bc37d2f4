#pragma once

#include "FakeMsgHook.h"
#include "ModScript.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

/// What the scripts of the tests call, as "test".
class ScriptTarget : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void note(const QString& text) { notes.append(text); }
    Q_INVOKABLE int length(const QString& text) { return text.size(); }
    /// Calls what the test wants to happen while the script is on the stack.
    Q_INVOKABLE void meanwhile()
    {
        if (during)
            during();
    }
    Q_INVOKABLE void fire() { emit fired(7); }
    Q_INVOKABLE void take(const QUrl& url) { urls.append(url); }

    QStringList notes;
    QList<QUrl> urls;
    std::function<void()> during;

signals:
    void fired(int value);
};

/// The script module with a fake message service.
class ScriptTest : public ::testing::Test
{
protected:
    ScriptTest() { make(nsModScript::eDebuggerOnDisplay); }

    using ModScript = nsModScript::ModScript;

    void make(nsModScript::eScriptDebugger_t debugger)
    {
        script = std::make_unique<ModScript>(nullptr, debugger);
        msg.attach(static_cast<ModMsgPluginIf*>(script.get()));
        script->modInit();
        script->registerObject(&target, "test");
    }

    bool run(const QString& text) { return script->executeScript(text); }
    QString write(const QByteArray& text, const QString& name = "s.js")
    {
        const QString path = folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(text), text.size());
        return path;
    }
    QAction* action(int index) const { return script->menuActions(ModActionHookIf::eActionClassTools).at(index); }
    QAction* stopAction() const { return action(1); }
    /// The user stops the script as soon as events are handled.
    void stopSoon()
    {
        QTimer::singleShot(0, stopAction(), [this] {
            EXPECT_TRUE(stopAction()->isEnabled());
            stopAction()->trigger();
        });
    }
    QString lastGroupResult() const
    {
        for (int i = msg.log.size() - 1; i >= 0; --i) {
            if (msg.log[i].kind == FakeMsgHook::kindGroupClose)
                return msg.log[i].success ? "good" : "failed";
        }
        return "none";
    }

    QTemporaryDir folder;
    FakeMsgHook msg;
    ScriptTarget target;
    std::unique_ptr<ModScript> script;
};
