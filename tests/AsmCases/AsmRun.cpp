#include "AsmRun.h"

#include "AsmFeFileHndlr.h"
#include "CfgTree.h"
#include "Opcode.h"
#include "SourceFormatter.h"

#include <QRegularExpression>

using namespace nsModAsmFe;

namespace {

const QString dataFolder = QStringLiteral(NALVO_SOURCE_DIR "/tests/data/asm");

QString severityName(int type)
{
    return type == ModMsgHookIf::eMsgInfo ? "info" : type == ModMsgHookIf::eMsgWarning ? "warning" : "error";
}

bool toNumber(const QString& text, qint64* value)
{
    bool ok = false;
    *value = text.toLongLong(&ok, text.contains("0x", Qt::CaseInsensitive) ? 16 : 10);
    return ok;
}

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Where two texts part, in words.
QString firstDifference(const QByteArray& expected, const QByteArray& actual)
{
    const QList<QByteArray> want = expected.split('\n');
    const QList<QByteArray> have = actual.split('\n');
    for (int i = 0; i < qMax(want.size(), have.size()); ++i) {
        if (want.value(i) != have.value(i) || i >= want.size() || i >= have.size())
            return QString("line %1: expected \"%2\", is \"%3\"")
                .arg(QString::number(i + 1), QString::fromLatin1(want.value(i)).replace('\r', "\\r"),
                     QString::fromLatin1(have.value(i)).replace('\r', "\\r"));
    }
    return QString();
}

} // namespace

AsmRun::AsmRun(const AsmCase& asmCase, eSources_t sources)
    : m_case(asmCase)
{
    prepareFolder(sources);
    writeProject();
    run();
}

AsmRun::~AsmRun()
{
    m_processor.prjClose();
    m_asmFe.modExitIntermod();
    m_asmFe.modExit();
}

void AsmRun::prepareFolder(eSources_t sources)
{
    const QString name = QDir(dataFolder).relativeFilePath(m_case.path);
    const QString folder = QStringLiteral(NALVO_BINARY_DIR "/asm-cases") +
                           (sources == sourcesFormatted ? QStringLiteral("-formatted/") : QStringLiteral("/")) + name;
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    m_dir = QDir(folder);
    const QString from = m_case.isFolder ? m_case.path : QFileInfo(m_case.path).path();
    for (const QString& file : m_case.sources + m_case.otherFiles)
        QFile::copy(from + '/' + file, m_dir.filePath(file));
    if (sources == sourcesFormatted)
        formatSources();
}

void AsmRun::formatSources()
{
    const SourceFormatter formatter;
    for (const QString& name : m_case.sources) {
        const QByteArray once = formatter.formatted(content(m_dir.filePath(name)));
        if (formatter.formatted(once) != once)
            differ("formatted twice is not once: " + name);
        QFile file(m_dir.filePath(name));
        // A source can be a file that nobody may write.
        file.setPermissions(file.permissions() | QFile::WriteOwner);
        if (!file.open(QIODevice::WriteOnly) || file.write(once) != once.size())
            differ("can not write " + name);
    }
}

void AsmRun::writeProject()
{
    CfgTree tree(nullptr);
    tree.setValue("PrjInfo/title", QString("case"));
    tree.setValue("PrjInfo/version", QString("0.1"));
    tree.setValue("sources/srcFiles", m_case.sources);
    tree.setValue("ModProcessor/processor", m_case.processor);
    for (const auto& setting : m_case.settings)
        tree.setValue(setting.first, setting.second);
    if (!m_prj.savePrjFile(&tree, m_dir.filePath("case.nalvo")))
        differ("the project file could not be written");
}

void AsmRun::run()
{
    const QList<ModPluginIf*> modules = {&m_prj, &m_sources, &m_processor, &m_asmFe};
    m_msg.attach(static_cast<ModMsgPluginIf*>(&m_prj));
    m_msg.attach(static_cast<ModMsgPluginIf*>(&m_sources));
    m_msg.attach(static_cast<ModMsgPluginIf*>(&m_processor));
    m_msg.attach(static_cast<ModMsgPluginIf*>(&m_asmFe));
    m_navi.registerPlugin(&m_asmFe);
    for (ModPluginIf* module : modules)
        module->modRegisterPlugins(modules);
    m_asmFe.modInit();
    m_asmFe.modInitIntermod();
    m_asmFe.setAssembleOnChange(false);
    if (!m_prj.openPrj(m_dir.filePath("case.nalvo"))) {
        differ("the project could not be opened");
        return;
    }
    for (const QString& file : m_case.removedFiles)
        QFile::remove(m_dir.filePath(file));
    m_asmFe.behaviorChkIntVector = m_case.intVector;
    m_msg.dropOnClear = false;
    m_infosFrom = m_msg.log.size();
    m_asmFe.assemble(ModAsmFe::eAssembleEvent_t(m_case.event));
}

QStringList AsmRun::provokedKeys() const
{
    QStringList keys;
    for (const FakeMsgHook::Entry& entry : m_msg.log) {
        if (!entry.key().isEmpty())
            keys.append(entry.key());
    }
    return keys;
}

QStringList AsmRun::keylessMessages() const
{
    QStringList texts;
    for (const FakeMsgHook::Entry& entry : m_msg.log.mid(m_infosFrom)) {
        if (entry.kind == FakeMsgHook::kindMessage && (entry.key().isEmpty() || entry.hlpDoc.scheme() != "pageid"))
            texts.append(entry.text);
    }
    return texts;
}

QStringList AsmRun::differences()
{
    if (!m_case.problem.isEmpty())
        differ(m_case.problem);
    compareResult();
    compareMessages();
    compareInfos();
    for (const ExpectedFact& fact : m_case.facts)
        compareFact(fact);
    for (const auto& fact : m_case.wholeFacts)
        compareWholeFact(fact.first, fact.second);
    compareGoldenFiles();
    return m_differences;
}

void AsmRun::compareResult()
{
    QString expected = m_case.result;
    if (expected.isEmpty()) {
        expected = "assembled";
        for (const ExpectedMsg& msg : m_case.messages) {
            if (msg.severity == "error")
                expected = "failed";
        }
    }
    // With an event the result covers the files that the event writes.
    const bool success = m_case.event == 0 ? m_asmFe.isAssembled() : m_asmFe.runSucceeded();
    if (expected != (success ? "assembled" : "failed"))
        differ("result: expected " + expected + ", is " + (success ? "assembled" : "failed"));
}

void AsmRun::compareMessages()
{
    QList<ExpectedMsg> open = m_case.messages;
    for (const FakeMsgHook::Entry& entry : m_msg.messages()) {
        if (entry.type == ModMsgHookIf::eMsgInfo)
            continue;
        ExpectedMsg actual;
        actual.severity = severityName(entry.type);
        actual.key = entry.key().isEmpty() ? QString("-") : entry.key();
        actual.text = entry.text;
        if (!entry.srcFile.isEmpty()) {
            actual.file = QFileInfo(entry.srcFile.path()).fileName();
            actual.line = entry.line();
        }
        bool found = false;
        for (int i = 0; i < open.size() && !found; ++i) {
            ExpectedMsg want = open.at(i);
            want.text.replace("{prj}", m_dir.absolutePath());
            found = want.severity == actual.severity && want.key == actual.key && want.line == actual.line &&
                    want.file == actual.file && (want.text.isEmpty() || want.text == actual.text.trimmed());
            if (found)
                open.removeAt(i);
        }
        if (!found)
            differ("unexpected: " + actual.describe());
    }
    for (const ExpectedMsg& msg : qAsConst(open))
        differ("missing: " + msg.describe());
}

void AsmRun::compareInfos()
{
    for (ExpectedMsg want : m_case.infos) {
        want.text.replace("{prj}", m_dir.absolutePath());
        bool found = false;
        for (const FakeMsgHook::Entry& entry : m_msg.log.mid(m_infosFrom)) {
            if (entry.kind != FakeMsgHook::kindMessage || entry.type != ModMsgHookIf::eMsgInfo)
                continue;
            const QString key = entry.key().isEmpty() ? QString("-") : entry.key();
            found = found || (want.key == key && (want.text.isEmpty() || want.text == entry.text.trimmed()));
        }
        if (!found)
            differ("missing: " + want.describe());
    }
}

void AsmRun::compareFact(const ExpectedFact& fact)
{
    if (fact.name == "nav")
        compareNavTag(fact);
    else if (fact.name == "value" || fact.name == "type" || fact.name == "used")
        compareEquFact(fact);
    else
        compareOpcodeFact(fact);
}

void AsmRun::compareOpcodeFact(const ExpectedFact& fact)
{
    const int fileNo = m_case.sources.indexOf(fact.file);
    const Opcode* opcode = m_asmFe.opcodeList()->first();
    while (opcode != nullptr && (opcode->srcRef.fileNo != fileNo || opcode->srcRef.lineNo != fact.line))
        opcode = opcode->next;
    const QString where = QString("%1:%2: %3").arg(fact.file).arg(fact.line + 1).arg(fact.name);
    if (opcode == nullptr) {
        differ(where + ": there is no instruction on this line");
        return;
    }
    const QHash<QString, int> values = {
        {"word", opcode->instWord}, {"addr", opcode->pageAddr}, {"mem", opcode->memAddr}, {"range", opcode->memRange}};
    bool ok = false;
    const int base = fact.name == "range" ? 10 : 16;
    const int expected = fact.value.toInt(&ok, base);
    if (!ok || expected != values.value(fact.name))
        differ(where + ": expected " + fact.value + ", is " + QString::number(values.value(fact.name), base).toUpper());
}

void AsmRun::compareEquFact(const ExpectedFact& fact)
{
    const int fileNo = m_case.sources.indexOf(fact.file);
    const Equ* equ = m_asmFe.equList()->first();
    while (equ != nullptr && (equ->srcRef.fileNo != fileNo || equ->srcRef.lineNo != fact.line))
        equ = equ->next;
    const QString where = QString("%1:%2: %3").arg(fact.file).arg(fact.line + 1).arg(fact.name);
    if (equ == nullptr) {
        differ(where + ": there is no #EQU on this line");
        return;
    }
    static const QHash<Arg::eArgType_t, QString> types = {{Arg::numeric, "numeric"},
                                                          {Arg::stringUtf16, "stringUtf16"},
                                                          {Arg::stringEncoded, "stringEncoded"},
                                                          {Arg::reg, "reg"},
                                                          {Arg::regBank, "regBank"}};
    QString actual;
    bool same = false;
    if (fact.name == "used") {
        actual = equ->used ? "yes" : "no";
        same = actual == fact.value;
    } else if (fact.name == "type") {
        actual = types.value(equ->arg->type, "something else");
        same = actual == fact.value;
    } else {
        qint64 expected = 0;
        actual = types.value(equ->arg->type, "something else") + ' ' + QString::number(equ->arg->iValue);
        same = toNumber(fact.value, &expected) && equ->arg->type == Arg::numeric && expected == equ->arg->iValue;
    }
    if (!same)
        differ(where + ": expected " + fact.value + ", is " + actual);
}

void AsmRun::compareNavTag(const ExpectedFact& fact)
{
    const QRegularExpressionMatch match = QRegularExpression("^(\\d+)\\s*(.*)$").match(fact.value);
    QStringList there;
    for (const nsModSrcNavi::NaviTag* tag : qAsConst(m_navi.tags)) {
        if (QFileInfo(tag->filePath).fileName() != fact.file || tag->line != fact.line)
            continue;
        if (tag->type == match.captured(1).toInt() && tag->title == match.captured(2))
            return;
        there.append(QString::number(tag->type) + ' ' + tag->title);
    }
    differ(QString("%1:%2: no tag %3; there: %4").arg(fact.file).arg(fact.line + 1).arg(fact.value, there.join(", ")));
}

void AsmRun::compareWholeFact(const QString& name, const QString& value)
{
    if (name == "count") {
        if (value.toInt() != m_asmFe.opcodeList()->count())
            differ("count: expected " + value + ", is " + QString::number(m_asmFe.opcodeList()->count()));
    } else if (name == "cell") {
        compareCell(value);
    } else if (name == "device") {
        compareDevice(value);
    } else if (name == "no-device") {
        if (m_asmFe.ioDevList()->contains(value))
            differ("the device " + value + " must not exist");
    } else if (name == "define" || name == "no-define") {
        if (m_asmFe.defines().contains(value) != (name == "define"))
            differ(name + ": " + value + " is not as expected");
    } else {
        const bool isGroup = name.endsWith("group");
        bool found = false;
        for (const FakeMsgHook::Entry& entry : m_msg.log.mid(m_infosFrom))
            found = found || (entry.key() == value && (entry.kind == FakeMsgHook::kindGroupOpen) == isGroup);
        if (found == name.startsWith("no-"))
            differ(name + ": " + value + (found ? " was shown" : " was not shown"));
    }
}

void AsmRun::compareCell(const QString& text)
{
    const QRegularExpressionMatch match = QRegularExpression("^(.*)\\[(.*)\\]\\s*=\\s*(\\S+)").match(text);
    qint64 addr = 0;
    qint64 expected = 0;
    const IODev* dev = m_asmFe.ioDevList()->find(match.captured(1));
    if (!match.hasMatch() || dev == nullptr || !toNumber(match.captured(2), &addr)) {
        differ("cell: there is no such device or cell: " + text);
        return;
    }
    unsigned int value = 0;
    bool isInitValue = false;
    if (!dev->value(int(addr), &value, &isInitValue)) {
        differ("cell: outside of the device: " + text);
    } else if (match.captured(3) == "init") {
        if (!isInitValue)
            differ("cell: was written: " + text);
    } else if (!toNumber(match.captured(3), &expected) || unsigned(expected) != value || isInitValue) {
        differ("cell: " + text + ", is 0x" + QString::number(value, 16) + (isInitValue ? " (init)" : ""));
    }
}

void AsmRun::compareDevice(const QString& text)
{
    const QRegularExpressionMatch match = QRegularExpression("^(\\S+)(?:\\s+size\\s+(\\S+))?").match(text);
    const IODev* dev = m_asmFe.ioDevList()->find(match.captured(1));
    qint64 size = 0;
    if (dev == nullptr)
        differ("the device does not exist: " + text);
    else if (!match.captured(2).isEmpty() && (!toNumber(match.captured(2), &size) || size != dev->memSize))
        differ("device: " + text + ", its size is " + QString::number(dev->memSize));
}

void AsmRun::compareGoldenFiles()
{
    for (const QString& file : m_case.goldenFiles) {
        const QString golden = m_case.path + "/expected/" + file;
        const QString actual = m_dir.filePath(file);
        if (qEnvironmentVariableIsSet("NALVO_UPDATE_GOLDEN") && QFile::exists(actual)) {
            QFile::remove(golden);
            QFile::copy(actual, golden);
        }
        if (!QFile::exists(actual))
            differ("the run did not write " + file);
        else if (content(golden) != content(actual))
            differ(file + ": " + firstDifference(content(golden), content(actual)));
    }
}
