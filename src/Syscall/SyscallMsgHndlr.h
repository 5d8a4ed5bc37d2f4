#pragma once

#include "ModMsgPluginIf.h"

#include <QObject>
#include <QString>
#include <QUrl>

namespace nsModSyscall {

/// Gives all messages about external programs their text, their grade and their help link.
class SyscallMsgHndlr : public QObject, public ModMsgPluginIf
{
    Q_OBJECT

public:
    /// The prefix of a key is its grade: info, warn or err.
    enum eMsgType_t : int {
        infoNothingTodo = 0,
        infoWaiting = 1,
        infoExitWithSuccess = 2,
        errExeAlreadyRunning = 3,
        errCanNotStart = 4,
        errExitWithoutSuccess = 5,
        errNotAllowed = 6,   ///< the user did not allow the program to run; argument: number
        warnTerminated = 7,  ///< it was ended with its project or its setting; argument: number
        warnKilled = 8,      ///< the same, by force
        infoLeftOut = 9,     ///< a batch run leaves the programs of the event out
        errNobodyToAsk = 10, ///< nobody is there who could allow it; argument: the command
        msgCount
    };
    enum eMsgGrp_t : int { grpSyscall = 0 };

    explicit SyscallMsgHndlr(QObject* parent = nullptr);

    /// Shows a message.
    /// @param arg takes the place of %1 in the text
    void signMsg(eMsgType_t type, const QString& arg = QString());
    /// Opens a message group.
    /// @param arg1 number of the program, counted from 1
    /// @param arg2 what is executed
    void signMsgGroup(eMsgGrp_t group, const QString& arg1, const QString& arg2);
    /// Closes the innermost group.
    void closeGroup(bool success);
    /// An error that should be impossible.
    void signInternalError(const QString& text);

    /// Key of a message, as its help page knows it; null for an unknown value.
    static const char* msgKey(eMsgType_t type);
    /// Its text as it is in the catalogue, with %1 for the argument; null for an unknown value.
    static const char* msgText(eMsgType_t type);

private:
    QUrl helpUrl(const char* key) const;

    const QUrl m_baseUrl;
};

} // namespace nsModSyscall
