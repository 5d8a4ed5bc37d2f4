#include "AsmReport.h"

#include "AsmFeFileHndlr.h"
#include "AsmLimits.h"
#include "AsmProgram.h"
#include "BatchFiles.h"
#include "BatchOutput.h"
#include "LineReader.h"
#include "Opcode.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace nsNalvoAsm {

using namespace nsBatch;
using namespace nsModAsmFe;

namespace {

/// The instructions in the order of the memory. Shared code is listed once, at its own address.
std::vector<const Opcode*> opcodesByAddr(const AsmProgram& program)
{
    std::vector<const Opcode*> opcodes;
    for (const Opcode* opcode = program.opcodes.first(); opcode != nullptr; opcode = opcode->next)
        opcodes.push_back(opcode);
    std::stable_sort(opcodes.begin(), opcodes.end(),
                     [](const Opcode* a, const Opcode* b) { return a->memAddr < b->memAddr; });
    return opcodes;
}

/// The lines of a source, without their ends, as bytes.
std::vector<QByteArray> sourceLines(const QString& file)
{
    std::vector<QByteArray> lines;
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return lines;
    LineReader reader(&source, AsmLimits::maxLineLength);
    QString line;
    while (reader.readLine(&line)) {
        if (line.endsWith('\n'))
            line.chop(1);
        lines.push_back(line.toLatin1());
    }
    return lines;
}

QByteArray hex(int value, int digits)
{
    return QByteArray::number(value, 16).toUpper().rightJustified(digits, '0');
}

QString rangeName(const AsmProgram& program, int number)
{
    const MemRange* range = program.memRanges.find(number);
    return range != nullptr ? range->name.toUpper() : QString();
}

QJsonValue equValue(const Arg* arg)
{
    switch (arg->type) {
    case Arg::numeric:
        return arg->iValue;
    case Arg::stringUtf16:
    case Arg::stringEncoded:
    case Arg::reg:
    case Arg::regBank:
        return readable(arg->strValue);
    default:
        return QJsonValue();
    }
}

QString equKind(const Arg* arg)
{
    switch (arg->type) {
    case Arg::stringUtf16:
    case Arg::stringEncoded:
        return QStringLiteral("string");
    case Arg::reg:
        return QStringLiteral("register");
    case Arg::regBank:
        return QStringLiteral("bank");
    default:
        return QString::fromLatin1(argTypeName(arg->type));
    }
}

} // namespace

QByteArray listingText(const AsmProgram& program, const AsmFeFileHndlr& files)
{
    std::vector<std::vector<QByteArray>> sources;
    QList<QByteArray> paths;
    for (const QString& file : files.files()) {
        sources.push_back(sourceLines(file));
        paths.append(shownPath(file).toLocal8Bit());
    }
    QByteArray text;
    for (const Opcode* opcode : opcodesByAddr(program)) {
        const SrcReference& ref = opcode->srcRef;
        const std::vector<QByteArray>& lines = sources.at(size_t(ref.fileNo));
        text += hex(opcode->memAddr, 4) + ' ' + rangeName(program, opcode->memRange).toLocal8Bit() + ' ' +
                hex(opcode->pageAddr, 3) + ' ' + hex(opcode->instWord, 5) + ' ' + paths.at(ref.fileNo) + ':' +
                QByteArray::number(ref.lineNo + 1) + ' ' +
                (size_t(ref.lineNo) < lines.size() ? lines[size_t(ref.lineNo)] : QByteArray()) + '\n';
    }
    return text;
}

QByteArray symbolsText(const AsmProgram& program, const AsmFeFileHndlr& files)
{
    const auto place = [&files](QJsonObject* object, const SrcReference& ref) {
        object->insert("file", shownPath(files.absSrcFilePath(ref.fileNo)));
        object->insert("line", ref.lineNo + 1);
    };
    QJsonArray labels;
    for (const Label* label = program.labels.first(); label != nullptr; label = label->next) {
        const Opcode* target = program.opcodes.nextOfLineIndex(label->srcRef.absLineNo);
        const bool bound = target != nullptr && target->nameSpace == label->nameSpace;
        QJsonObject object{{"name", qualifiedName(label->nameSpace, label->name)},
                           {"address", bound ? QJsonValue(target->pageAddr) : QJsonValue()},
                           {"page", bound ? QJsonValue(rangeName(program, target->memRange)) : QJsonValue()}};
        place(&object, label->srcRef);
        labels.append(object);
    }
    QJsonArray equs;
    for (const Equ* equ = program.equs.first(); equ != nullptr; equ = equ->next) {
        QJsonObject object{{"name", qualifiedName(equ->nameSpace, equ->name)},
                           {"kind", equKind(equ->arg)},
                           {"value", equValue(equ->arg)},
                           {"used", equ->used}};
        place(&object, equ->srcRef);
        equs.append(object);
    }
    return QJsonDocument(QJsonObject{{"labels", labels}, {"equs", equs}}).toJson();
}

QString writeReport(const QString& file, const QByteArray& text)
{
    OutputFile report;
    const QString failure = report.open(file);
    if (!failure.isEmpty())
        return failure;
    return report.write(text) ? report.commit() : report.failure();
}

} // namespace nsNalvoAsm
