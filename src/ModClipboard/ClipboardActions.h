#pragma once

#include "ModActionHookIf.h"

#include <QActionGroup>
#include <QKeySequence>
#include <QList>

namespace nsModClipboard {

/// Cut, copy and paste in menu and tool bar "Edit".
class ClipboardActions : public QActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionCut = 0, eActionCopy = 1, eActionPaste = 2 };

    explicit ClipboardActions(QObject* parent);

    /// All actions, or one of them.
    void setEnabled(bool enabled);
    void setEnabled(eAction_t action, bool enabled);

    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) const;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) const;

signals:
    void triggered(nsModClipboard::ClipboardActions::eAction_t action);

private slots:
    void handleAction(QAction* action);

private:
    void add(eAction_t id, const QString& text, const QString& toolTip, QKeySequence::StandardKey key,
             const QString& icon);
};

} // namespace nsModClipboard
