#include "Assembly.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmProjectInfo.h"
#include "Assembler.h"
#include "Opcode.h"
#include "ProcTable.h"
#include "Processor.h"

#include <QHash>
#include <QList>

namespace nsImport {

using namespace nsModAsmFe;

namespace {

/// The sources have absolute paths, as every source has. Nothing is ever looked for there.
const QString root = QStringLiteral("/");

/// Keeps errors and warnings. Groups have no meaning without a view.
class MessageList : public ModMsgHookIf
{
public:
    void registerPlugin(ModMsgPluginIfInterMod*) override {}
    void unregisterPlugin(ModMsgPluginIfInterMod*) override {}
    void registerPlugin(ModMsgPluginIf*) override {}
    void unregisterPlugin(ModMsgPluginIf*) override {}
    void registerPluginUrlHndlr(eUrlHndlr_t, ModMsgPluginIfUrlHndlr*) override {}
    void unregisterPluginUrlHndlr(eUrlHndlr_t, ModMsgPluginIfUrlHndlr*) override {}
    void clearMessages() override { messages.clear(); }
    void openMessageGroup(QString, QUrl) override {}
    void closeMessageGroup(bool) override {}
    void showMessage(eMsgType_t type, QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile) override
    {
        if (type == eMsgInfo)
            return;
        AssemblyMessage message;
        message.type = type;
        message.key = hlpDoc.fragment();
        message.text = text;
        if (!srcFile.isEmpty()) {
            message.file = srcFile.path().mid(root.size());
            message.line = srcFile.fragment().toInt() + 1;
        }
        messages.append(message);
    }
    void showInfoMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile) override
    {
        showMessage(eMsgInfo, text, hlpDoc, srcFile);
    }
    void showWarningMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile) override
    {
        showMessage(eMsgWarning, text, hlpDoc, srcFile);
    }
    void showErrorMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile) override
    {
        showMessage(eMsgError, text, hlpDoc, srcFile);
    }

    QVector<AssemblyMessage> messages;
};

/// The words of an assembled program, with their lines.
class ImageOfProgram
{
public:
    ImageOfProgram(const AsmProgram& program, const QVector<AssemblySource>& sources)
        : m_program(program)
        , m_sources(sources)
    {
        for (const AssemblySource& source : sources)
            m_files.append(image.addFile(source.name));
    }

    /// @return false: an address has no room in an image, or two words
    bool build()
    {
        const AsmMemGeometry& geometry = m_program.geometry;
        image.depth = geometry.pageSize * geometry.pageCount;
        for (const Opcode* opcode : m_program.opcodes) {
            if (opcode->memRange != 0) {
                if (!add(*opcode, opcode->memAddr))
                    return false;
                continue;
            }
            // Each page has the words of the shared range.
            for (int page = 0; page < geometry.pageCount; ++page) {
                if (!add(*opcode, page * geometry.pageSize + opcode->pageAddr))
                    return false;
            }
        }
        return true;
    }

    ProgramImage image;

private:
    bool add(const Opcode& opcode, int address)
    {
        const SrcReference& place = opcode.srcRef;
        if (image.setWord(address, quint32(opcode.instWord), place.lineNo + 1, m_files.value(place.fileNo)) !=
            ProgramImage::eSetDone)
            return false;
        image.setText(address, lineOf(place.fileNo, place.lineNo));
        return true;
    }

    /// Lines are asked for in ascending order: the search goes on where the last one has ended.
    QString lineOf(int file, int line)
    {
        if (file != m_file || line < m_line) {
            m_file = file;
            m_line = 0;
            m_pos = 0;
        }
        if (file < 0 || file >= m_sources.size())
            return QString();
        const QByteArray& text = m_sources.at(file).text;
        for (; m_line < line && m_pos >= 0; ++m_line)
            m_pos = nextLine(text, m_pos);
        if (m_pos < 0)
            return QString();
        const int end = text.indexOf('\n', m_pos);
        return QString::fromUtf8(text.mid(m_pos, end < 0 ? -1 : end - m_pos)).trimmed();
    }

    static int nextLine(const QByteArray& text, int pos)
    {
        const int end = text.indexOf('\n', pos);
        return end < 0 ? -1 : end + 1;
    }

    const AsmProgram& m_program;
    const QVector<AssemblySource>& m_sources;
    QList<int> m_files; ///< index in the image by number of the source
    int m_file = -1;    ///< where lineOf() stands
    int m_line = 0;
    int m_pos = 0;
};

} // namespace

QString AssemblyResult::firstError() const
{
    for (const AssemblyMessage& message : messages) {
        if (message.type != ModMsgHookIf::eMsgError)
            continue;
        return message.line > 0
                   ? QStringLiteral("%1:%2: %3").arg(message.file, QString::number(message.line), message.text)
                   : message.text;
    }
    return QString();
}

Assembly::Assembly(const nsProc::ProcTable& table)
    : settings(table.defaultConfig())
    , m_table(table)
{
}

AssemblyResult Assembly::run(const QVector<AssemblySource>& sources) const
{
    MessageList log;
    AsmFeFileHndlr files;
    AsmFeMsgHndlr messages(&files);
    messages.modMsgHook = &log;
    files.modMsgHook = &log;
    QStringList paths;
    for (const AssemblySource& source : sources) {
        paths.append(root + source.name);
        files.setText(paths.last(), source.text);
    }
    nsProc::Processor processor(m_table);
    processor.setSettings(settings);
    AsmProjectInfo project;
    project.dir = root;
    files.setPrjDir(root + QStringLiteral("memory.nalvo"));
    Assembler assembler(files, messages, config);
    assembler.setBackend(&processor);
    assembler.charsets().setupDefaultCodec(config.defaultCharset);

    AssemblyResult result;
    result.ok = assembler.run(paths, project, AsmFeConfig::eEventNone);
    if (result.ok) {
        ImageOfProgram program(assembler.program(), sources);
        result.ok = program.build();
        if (result.ok)
            result.image = program.image;
        else
            messages.signInternalError(QStringLiteral("The memory has more than %1 words.").arg(ProgramImage::maxSize));
    }
    result.messages = log.messages;
    return result;
}

} // namespace nsImport
