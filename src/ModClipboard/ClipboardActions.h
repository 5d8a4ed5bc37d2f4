#pragma once

#include "ActionGroup.h"

namespace nsModClipboard {

/// Cut, copy and paste in menu and tool bar "Edit".
class ClipboardActions : public ActionGroup
{
    Q_OBJECT

public:
    enum eAction_t { eActionCut = 0, eActionCopy = 1, eActionPaste = 2 };

    explicit ClipboardActions(QObject* parent);

signals:
    void triggered(nsModClipboard::ClipboardActions::eAction_t action);

protected:
    void report(int action) override { emit triggered(eAction_t(action)); }
};

} // namespace nsModClipboard
