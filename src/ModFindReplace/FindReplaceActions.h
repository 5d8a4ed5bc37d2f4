#pragma once

#include "ModActionHookIf.h"

#include <QActionGroup>
#include <QKeySequence>
#include <QList>

namespace nsModFindReplace {

/// The entries of find and replace in the menu "Edit".
class FindReplaceActions : public QActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionFind = 0, eActionFindNext = 1, eActionFindPrev = 2, eActionReplace = 3 };

    explicit FindReplaceActions(QObject* parent);

    /// All actions, or one of them.
    void setEnabled(bool enabled);
    void setEnabled(eAction_t action, bool enabled);

    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) const;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) const;

signals:
    void triggered(nsModFindReplace::FindReplaceActions::eAction_t action);

private slots:
    void handleAction(QAction* action);

private:
    void add(eAction_t id, const QString& text, QKeySequence::StandardKey key, const QString& icon);
};

} // namespace nsModFindReplace
