#pragma once

#include "ModMsgHookIf.h"

namespace nsModMsg {

/// Keeps a message group open during one action of the user, so that its messages are still on the screen when it has
/// ended: many actions start a run of the assembler, which clears the message view unless a group is open.
class MsgGroup
{
public:
    /// What happens to the messages of earlier actions.
    enum eEarlier_t {
        eClearEarlier, ///< the view is cleared first, unless this action is part of another one that has a group open
        eKeepEarlier
    };

    /// @param hook message service, may be null; not owned, and must outlive the group
    MsgGroup(ModMsgHookIf* hook, const QString& text, eEarlier_t earlier = eClearEarlier)
        : m_hook(hook)
    {
        if (m_hook == nullptr)
            return;
        if (earlier == eClearEarlier)
            m_hook->clearMessages();
        m_hook->openMessageGroup(text);
    }
    /// Closes the group with what end() was given, as a success if nothing was. A failed group, and one that holds a
    /// warning or an error, stays unfolded.
    ~MsgGroup()
    {
        if (m_hook != nullptr)
            m_hook->closeMessageGroup(m_success);
    }
    MsgGroup(const MsgGroup&) = delete;
    MsgGroup& operator=(const MsgGroup&) = delete;

    /// Stores the result of the action; the last call counts. @return success
    bool end(bool success)
    {
        m_success = success;
        return success;
    }

private:
    ModMsgHookIf* m_hook;
    bool m_success = true;
};

} // namespace nsModMsg
