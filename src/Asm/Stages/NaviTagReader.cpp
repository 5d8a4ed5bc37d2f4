#include "NaviTagReader.h"

#include "AsmFeFileHndlr.h"

#include <QRegExp>

namespace nsModAsmFe {

NaviTagReader::NaviTagReader(const AsmFeLineHndlr& line, const AsmFeFileHndlr& files, AsmRunListener& listener)
    : m_line(line)
    , m_files(files)
    , m_listener(listener)
    , m_isWanted(listener.wantsNaviTags())
{
}

void NaviTagReader::addNaviTag(const SrcReference& srcRef, AsmNaviTag::eType_t type, const QString& title,
                               const QString& lineRef, bool isSkipped)
{
    AsmNaviTag naviTag;
    naviTag.type = type;
    naviTag.filePath = m_files.absSrcFilePath(srcRef.fileNo);
    naviTag.line = srcRef.lineNo;
    naviTag.lineRef = lineRef;
    naviTag.title = title;
    naviTag.disabled = isSkipped;
    m_listener.naviTagFound(naviTag);
}

void NaviTagReader::parseLineNaviTag(const SrcReference& srcRef, const QString& nameSpace, bool isSkipped)
{
    if (!m_isWanted)
        return;
    if (!m_line.isEmpty(AsmFeLineHndlr::eTagLabel) && m_line.isEmpty(AsmFeLineHndlr::eTagSpacer0)) {
        const QString label = m_line.tag(AsmFeLineHndlr::eTagLabel);
        addNaviTag(srcRef, AsmNaviTag::typeLabel, nameSpace.isEmpty() ? label : QString("%1::%2").arg(nameSpace, label),
                   QString(), isSkipped);
    }
    // The expressions are slow, and few comments hold a command.
    if (!m_line.tagView(AsmFeLineHndlr::eTagComment).contains(QChar('\\')))
        return;

    static const struct
    {
        const char* word;
        AsmNaviTag::eType_t type;
    } commands[] = {{"navConst", AsmNaviTag::typeConstant},
                    {"navHw", AsmNaviTag::typeHardware},
                    {"navSep", AsmNaviTag::typeSeparator},
                    {"navGrpBegin", AsmNaviTag::typeGroupBegin}};
    QString comment = m_line.tag(AsmFeLineHndlr::eTagComment);
    for (const auto& command : commands) {
        const QString word = QString::fromLatin1(command.word);
        if (QRegExp("^.*\\\\\\b" + word + "\\b", Qt::CaseInsensitive).indexIn(comment) < 0)
            continue;
        QString title = comment;
        title.remove(QRegExp("^.*\\\\" + word + "\\s*", Qt::CaseInsensitive));
        // The comment includes the line end, which is not part of the title.
        while (!title.isEmpty() && title.at(title.size() - 1).isSpace())
            title.chop(1);
        title.remove(QRegExp("^\""));
        title.remove(QRegExp("\"$"));
        QString line = m_line.line();
        addNaviTag(srcRef, command.type, title, parseLineNaviTagLineRef(&line, word), isSkipped);
        return;
    }
    if (QRegExp("^.*\\\\\\bnavGrpEnd", Qt::CaseInsensitive).indexIn(comment) >= 0)
        addNaviTag(srcRef, AsmNaviTag::typeGroupEnd, QString(), QString(), isSkipped);
}

QString NaviTagReader::parseLineNaviTagLineRef(QString* line, const QString& word)
{
    for (const char* title : {"\\s+\"[\\S\\s]*\"", "\\s+\\S+"}) {
        QRegExp expression("(^.*\\\\" + word + QString::fromLatin1(title) + ')', Qt::CaseInsensitive);
        if (expression.indexIn(*line) >= 0)
            return expression.cap(0);
    }
    // Without the line break, as a search in the document could not find it.
    QString text = *line;
    while (text.endsWith('\n') || text.endsWith('\r'))
        text.chop(1);
    return text;
}

} // namespace nsModAsmFe
