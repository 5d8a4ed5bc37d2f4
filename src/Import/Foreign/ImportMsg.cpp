#include "ImportMsg.h"

#include "EnumTable.h"

#include <QCoreApplication>

#include <cstring>

namespace nsImport {

namespace {

#define NALVO_MSG(type, text)                                                                                          \
    {                                                                                                                  \
        type, #type, QT_TRANSLATE_NOOP("nsImport::ImportMessages", text)                                               \
    }

/// Indexed by eImportMsg_t.
constexpr sImportMsg_t messages[] = {
    NALVO_MSG(errImpCannotRead, "Can not read \"%1\": %2"),
    NALVO_MSG(errImpNotAFile, "Not a regular file: \"%1\""),
    NALVO_MSG(errImpTooLarge, "Larger than %2 MB, which no source is: \"%1\""),
    NALVO_MSG(errImpTooManyFiles, "More than %1 files are included."),
    NALVO_MSG(errImpTooManyLines, "The program has more than %1 lines."),
    NALVO_MSG(errImpBinary, "Not a text: the byte %1 stands in the line."),
    NALVO_MSG(errImpLineTooLong, "The line is longer than %1 characters."),
    NALVO_MSG(errImpIncludeMissing, "Included file not found: \"%1\""),
    NALVO_MSG(errImpIncludeOutside, "\"%1\" lies outside of the folder of the program. Allow its folder with -I: %2"),
    NALVO_MSG(errImpIncludeCycle, "\"%1\" includes itself."),
    NALVO_MSG(errImpIncludeDepth, "Files are included in more than %1 levels."),
    NALVO_MSG(infoImpIncludeCase, "Included file \"%1\" found as \"%2\"."),
    NALVO_MSG(errImpDialectUnknown, "The dialect can not be told: no line has a word of a known one. Name it."),
    NALVO_MSG(infoImpDialectChosen, "Dialect: %1."),
    NALVO_MSG(infoImpDialectGuessed, "Dialect: %1, because of %2."),
    NALVO_MSG(errImpSyntax, "Not understood: %1"),
    NALVO_MSG(errImpUnknownWord, "Unknown word: \"%1\""),
    NALVO_MSG(errImpNoCounterpart, "\"%1\" has no counterpart: %2"),
    NALVO_MSG(errImpOperandCount, "\"%1\" has the wrong number of operands."),
    NALVO_MSG(errImpExpectRegister, "Not a register: \"%1\""),
    NALVO_MSG(errImpExpectValue, "Not a value: \"%1\""),
    NALVO_MSG(errImpExpectTarget, "Not an address: \"%1\""),
    NALVO_MSG(errImpExpectWord, "\"%1\" stands where one of these words is expected: %2"),
    NALVO_MSG(errImpUnknownName, "Unknown name: \"%1\""),
    NALVO_MSG(warnImpNameIsNumber, "\"%1\" is taken as the name, though it could be a number."),
    NALVO_MSG(infoImpNameCase, "\"%1\" is taken as \"%2\"."),
    NALVO_MSG(errImpDuplicateName, "\"%1\" is defined already in line %2 of \"%3\"."),
    NALVO_MSG(errImpAmbiguousName, "\"%1\" has several values further down, and none before this line."),
    NALVO_MSG(errImpAmbiguousOrder, "Assemblers do not agree on the order of the operators: set parentheses in %1"),
    NALVO_MSG(errImpCircle, "The value of \"%1\" depends on itself."),
    NALVO_MSG(errImpNumber, "Not a number: \"%1\""),
    NALVO_MSG(errImpTooLargeNumber, "\"%1\" is %2, which does not fit: the largest is %3."),
    NALVO_MSG(errImpAddressRange, "Address %1 is beyond what the processor reaches, %2."),
    NALVO_MSG(errImpAddressTwice, "Address %1 is taken already by line %2 of \"%3\"."),
    NALVO_MSG(errImpTooFar, "The target %1 is too far away for a jump."),
    NALVO_MSG(errImpNoSuchWord, "No instruction has the word %1."),
    NALVO_MSG(errImpTooManyWords, "The program has more than %1 words."),
    NALVO_MSG(errImpNoInstructions, "The program has no instruction."),
    NALVO_MSG(infoImpRenamed, "\"%1\" is now \"%2\": %3"),
    NALVO_MSG(infoImpTargetMade,
              "Label \"%1\" made for the target %2, where the program has no instruction: word 00000."),
    NALVO_MSG(infoImpStartFilled,
              "The program has nothing at address 0: an instruction with the word 00000 is put there."),
    NALVO_MSG(infoImpReordered, "The code at %1 is moved, as addresses ascend in the result."),
    NALVO_MSG(infoImpAfterEnd, "\"%1\" ends the program: %2 lines after it are comments."),
    NALVO_MSG(infoImpUnusedFilled, "%1 unused words jump to \"%2\"."),
    NALVO_MSG(infoImpIntVector, "The interrupt vector is supposed to be %1."),
    NALVO_MSG(infoImpNumberForName, "\"%1\" becomes the number %2, as the result can not name it there."),
    NALVO_MSG(warnImpStamp,
              "\"%1\" is the moment when the old tool ran, which nothing tells: taken as %2, not proved."),
    NALVO_MSG(infoImpStamp, "\"%1\" is taken from the reference: %2."),
    NALVO_MSG(warnImpOutput, "The output \"%1\" is not taken over: %2"),
    NALVO_MSG(errImpWrongResult, "The result does not assemble to what was read: %1"),
    NALVO_MSG(errImpCannotWrite, "Can not write \"%1\": %2"),
    NALVO_MSG(errImpExists, "\"%1\" exists already. Overwrite it with --force, or choose another folder."),
    NALVO_MSG(errImpOriginal, "\"%1\" is a file of the original program, which is never overwritten."),
    NALVO_MSG(errImpReference, "Can not read the image \"%1\": %2"),
    NALVO_MSG(warnImpNoReference, "Not proved: there is no image of the old tool to compare with (--reference)."),
    NALVO_MSG(errImpNoInstruction, "Address %1: the word %2 is no instruction, %3."),
    NALVO_MSG(errImpRescue, "No sources can be made of \"%1\": %2"),
    NALVO_MSG(errImpTooManyMessages, "More than %1 errors: the others are not shown."),
    NALVO_MSG(infoImpTooManyNotes, "More than %1 notes and warnings: the others are not shown."),
};

static_assert(isIndexedBy(messages, &sImportMsg_t::type, eImportMsgCount), "the rows are indexed by eImportMsg_t");

} // namespace

bool isImportError(eImportMsg_t type)
{
    return std::strncmp(messages[type].key, "err", 3) == 0;
}

const sImportMsg_t* importMsg(int type)
{
    return type >= 0 && type < eImportMsgCount ? &messages[type] : nullptr;
}

ModMsgHookIf::eMsgType_t ImportMessage::grade() const
{
    const sImportMsg_t* row = importMsg(type);
    if (row == nullptr || std::strncmp(row->key, "err", 3) == 0)
        return ModMsgHookIf::eMsgError;
    return std::strncmp(row->key, "warn", 4) == 0 ? ModMsgHookIf::eMsgWarning : ModMsgHookIf::eMsgInfo;
}

QString ImportMessage::key() const
{
    const sImportMsg_t* row = importMsg(type);
    return row != nullptr ? QString::fromLatin1(row->key) : QString();
}

void ImportMessages::add(eImportMsg_t type, const QStringList& arguments, const QString& file, int line)
{
    // Notes leave room for errors.
    const bool isError = isImportError(type);
    const int number = ++(isError ? m_errors : m_others);
    ++m_counts[type];
    if (number > maxMessages + 1)
        return;
    const bool last = number > maxMessages;
    ImportMessage message;
    message.type = !last ? type : isError ? errImpTooManyMessages : infoImpTooManyNotes;
    QString text = QCoreApplication::translate("nsImport::ImportMessages", messages[message.type].text);
    // In one go, so that a %1 in an argument is no place.
    const QStringList shown = last ? QStringList(QString::number(maxMessages)) : arguments;
    const auto argument = [&](int i) { return shown.value(i).left(200); };
    switch (shown.size()) {
    case 0:
        break;
    case 1:
        text = text.arg(argument(0));
        break;
    case 2:
        text = text.arg(argument(0), argument(1));
        break;
    default:
        text = text.arg(argument(0), argument(1), argument(2));
        break;
    }
    message.text = text;
    if (!last) {
        message.file = file;
        message.line = line;
    }
    m_all.append(message);
}

} // namespace nsImport
