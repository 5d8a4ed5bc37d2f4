#pragma once

#include "FakeGuiHook.h"
#include "FakeSmallHooks.h"
#include "ModMsg.h"
#include "ModMsgPluginIf.h"
#include "MsgViewer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTreeWidget>

/// The message service with fake servers, after its set-up.
class MsgTest : public ::testing::Test
{
protected:
    MsgTest()
    {
        // The pictures tell the grades apart.
        initResources();
        msg.modGuiHook = &gui;
        msg.modScriptHook = &script;
        msg.modInit();
        msg.modInitIntermod();
        hook = &msg;
        viewer = qobject_cast<nsModMsg::MsgViewer*>(gui.widgetNamed(QStringLiteral("Messages")));
    }
    ~MsgTest() override { delete viewer; }

    static void initResources();

    /// Grade that the picture of the item stands for; -1 for none.
    static int grade(const QTreeWidgetItem* item)
    {
        const char* const names[] = {":/ModMsg/img/msgOk.png", ":/ModMsg/img/msgWarning.png",
                                     ":/ModMsg/img/msgError.png"};
        const QImage shown = item->icon(0).pixmap(16).toImage();
        for (int i = 0; i < 3; ++i) {
            const QImage picture = QIcon(QLatin1String(names[i])).pixmap(16).toImage();
            if (!picture.isNull() && picture == shown)
                return i;
        }
        return -1;
    }

    /// The tree as text: two blanks a level, grade, "+" for an open branch, text.
    QString dump(const QTreeWidgetItem* parent = nullptr, int depth = 0) const
    {
        if (parent == nullptr)
            parent = viewer->invisibleRootItem();
        QString result;
        for (int i = 0; i < parent->childCount(); ++i) {
            const QTreeWidgetItem* item = parent->child(i);
            result += QString(2 * depth, QLatin1Char(' ')) + QLatin1Char("iwe?"[grade(item) < 0 ? 3 : grade(item)]) +
                      (item->isExpanded() ? QStringLiteral("+ ") : QStringLiteral(" ")) + item->text(0) +
                      QLatin1Char('\n') + (item->childCount() > 0 ? dump(item, depth + 1) : QString());
        }
        return result;
    }

    FakeGuiHook gui;
    FakeScriptHook script;
    nsModMsg::ModMsg msg;
    ModMsgHookIf* hook = nullptr;
    nsModMsg::MsgViewer* viewer = nullptr;
};

/// A handler that records what it is called with.
struct RecordingUrlHndlr : public ModMsgPluginIfUrlHndlr
{
    void handleUrl(QUrl url) override { urls.append(url); }
    QList<QUrl> urls;
};
