#pragma once

#include "AsmFeLineHndlr.h"
#include "AsmRunListener.h"
#include "SrcReference.h"

#include <QString>

namespace nsModAsmFe {

class AsmFeFileHndlr;

/// Finds the places that a table of contents shows: labels at the start of a line, and the navigator's commands in
/// comments, in skipped text too.
class NaviTagReader
{
public:
    /// @param line read: the tags of the present line
    /// @param files read: the paths of the sources
    /// @param listener takes the tags
    NaviTagReader(const AsmFeLineHndlr& line, const AsmFeFileHndlr& files, AsmRunListener& listener);

    /// @param nameSpace of the line
    /// @param isSkipped the line lies in a conditional branch that is skipped
    void parseLineNaviTag(const SrcReference& srcRef, const QString& nameSpace, bool isSkipped);

private:
    static QString parseLineNaviTagLineRef(QString* line, const QString& word);
    void addNaviTag(const SrcReference& srcRef, AsmNaviTag::eType_t type, const QString& title, const QString& lineRef,
                    bool isSkipped);

    const AsmFeLineHndlr& m_line;
    const AsmFeFileHndlr& m_files;
    AsmRunListener& m_listener;
    bool m_isWanted;
};

} // namespace nsModAsmFe
