#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

class QTextCodec;

namespace nsModAsmFe {

class AsmFeMsgHndlr;

/// The character sets of the platform, and the one that strings without an attribute get.
class AsmCharsets
{
public:
    explicit AsmCharsets(AsmFeMsgHndlr& messages);

    /// The names of all character sets of the platform, in upper case.
    static QStringList available();
    /// The same, kept. Asked from the platform at the first use, which takes its time.
    const QStringList& names();
    /// @param upperName in upper case
    bool contains(const QString& upperName);

    /// Makes a character set the default, and reports it.
    /// @return false, with no default any more, if there is no such set; reported
    bool setupDefaultCodec(const QString& name);
    /// The same in silence: the start of a run.
    void resetDefaultCodec(const QString& name);
    /// @return there is a default; else reported
    bool syntacticsCheckDefaultTextCodec();
    /// Null if there is none. Not owned.
    QTextCodec* defaultCodec() const { return m_defaultCodec; }

private:
    AsmFeMsgHndlr& m_messages;
    QStringList m_names;
    QSet<QString> m_set;
    QTextCodec* m_defaultCodec = nullptr; ///< not owned, may be null
};

} // namespace nsModAsmFe
