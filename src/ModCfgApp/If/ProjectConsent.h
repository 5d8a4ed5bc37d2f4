#pragma once

#include <QString>
#include <QStringList>

class ModCfgAppHookIf;

/// What this user has allowed or refused a project file to do on this account. The answers are kept in the user's
/// settings: a project that comes from somebody else brings none along.
///
/// An answer belongs to one project file, one kind of act and exactly the texts that describe the act. A change of any
/// of them, also a move of the project file, leaves no answer.
class ProjectConsent
{
public:
    enum eKind_t {
        kindProgram, ///< to start a program; described by its path and each of its arguments
        kindOutput,  ///< to write a file outside of the project's folder; described by its path
    };
    enum eAnswer_t { answerNone, answerNo, answerYes };

    /// @param settings not owned; null keeps nothing, and there are no answers
    /// @param prjFile path of the project file
    ProjectConsent(ModCfgAppHookIf* settings, const QString& prjFile);

    eAnswer_t answer(eKind_t kind, const QStringList& act) const;
    /// Replaces an earlier answer.
    void setAnswer(eKind_t kind, const QStringList& act, bool allowed);

private:
    QString key(eKind_t kind, const QStringList& act) const;

    ModCfgAppHookIf* m_settings;
    QString m_prjFile; ///< without links
};
