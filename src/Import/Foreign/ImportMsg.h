#pragma once

#include "ModMsgHookIf.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace nsImport {

/// Every message about a foreign program. The prefix of the key is the grade: info, warn or err.
enum eImportMsg_t {
    errImpCannotRead,
    errImpNotAFile,
    errImpTooLarge,
    errImpTooManyFiles,
    errImpTooManyLines,
    errImpBinary,
    errImpLineTooLong,
    errImpIncludeMissing,
    errImpIncludeOutside,
    errImpIncludeCycle,
    errImpIncludeDepth,
    infoImpIncludeCase,
    errImpDialectUnknown,
    infoImpDialectChosen,
    infoImpDialectGuessed,
    errImpSyntax,
    errImpUnknownWord,
    errImpNoCounterpart,
    errImpOperandCount,
    errImpExpectRegister,
    errImpExpectValue,
    errImpExpectTarget,
    errImpExpectWord,
    errImpUnknownName,
    warnImpNameIsNumber,
    infoImpNameCase,
    errImpDuplicateName,
    errImpAmbiguousName,
    errImpAmbiguousOrder,
    errImpCircle,
    errImpNumber,
    errImpTooLargeNumber,
    errImpAddressRange,
    errImpAddressTwice,
    errImpTooFar,
    errImpNoSuchWord,
    errImpTooManyWords,
    errImpNoInstructions,
    infoImpRenamed,
    infoImpTargetMade,
    infoImpStartFilled,
    infoImpReordered,
    infoImpAfterEnd,
    infoImpUnusedFilled,
    infoImpIntVector,
    infoImpNumberForName,
    warnImpStamp,
    infoImpStamp,
    warnImpOutput,
    errImpWrongResult,
    errImpCannotWrite,
    errImpExists,
    errImpOriginal,
    errImpReference,
    warnImpNoReference,
    errImpNoInstruction,
    errImpRescue,
    errImpTooManyMessages,
    infoImpTooManyNotes,
    eImportMsgCount, ///< number of messages, not a message
};

/// One row of the catalogue.
struct sImportMsg_t
{
    eImportMsg_t type;
    const char* key;  ///< also the anchor in the help page
    const char* text; ///< with the places %1 to %3
};

/// The row of a message; null for a value outside of the catalogue.
const sImportMsg_t* importMsg(int type);

/// Is it an error?
bool isImportError(eImportMsg_t type);

/// A message with its place.
struct ImportMessage
{
    eImportMsg_t type = eImportMsgCount;
    QString text; ///< for the user
    QString file; ///< path of the source; empty if the message has no place
    int line = 0; ///< counted from 1; 0 if the message has no line

    ModMsgHookIf::eMsgType_t grade() const;
    QString key() const;
};

/// Collects the messages of an import. Their number is bounded, so that a file of another kind does not make a million
/// of them.
class ImportMessages
{
public:
    static constexpr int maxMessages = 2000; ///< errors, and as many others

    /// @param line counted from 1; 0 if there is none
    void add(eImportMsg_t type, const QStringList& arguments, const QString& file = QString(), int line = 0);

    const QVector<ImportMessage>& all() const { return m_all; }
    int errors() const { return m_errors; }
    int count(eImportMsg_t type) const { return m_counts.value(type); }

private:
    QVector<ImportMessage> m_all;
    QHash<int, int> m_counts;
    int m_errors = 0;
    int m_others = 0;
};

} // namespace nsImport
