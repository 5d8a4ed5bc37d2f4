#pragma once

#include "ForeignSymbols.h"
#include "WordEncoder.h"

#include "ProcDisassembler.h"

namespace nsImport {

/// Works out what a foreign program says: the address of each statement, and the instruction of the result with its
/// word for each instruction.
class ForeignResolver
{
    Q_DECLARE_TR_FUNCTIONS(nsImport::ForeignResolver)

public:
    /// @param program, messages not owned
    ForeignResolver(ForeignProgram& program, const ForeignStamp& stamp, ImportMessages& messages);

    void resolve();
    /// Makes a label for an address that the result needs and the program has not named.
    QString labelFor(int address);

private:
    /// One byte of a string or table.
    struct Byte
    {
        int value = 0;
        QString text; ///< in the result
    };
    using Bytes = QVector<Byte>;

    // Places.
    void place();
    void placeStatement(int index, int* address);
    bool placeAt(const ForeignStatement& statement, int* address);
    int sizeOf(const ForeignStatement& statement);
    // Strings and tables.
    const Bytes* bytesOf(const QString& name);
    bool appendBytes(const ForeignStatement& statement, const QString& part, Bytes* bytes);
    bool appendText(const QString& text, bool isUtf8, Bytes* bytes) const;
    bool appendTable(const ForeignStatement& statement, QString part, Bytes* bytes);
    // Instructions.
    void encode();
    void checkValue(ForeignStatement* statement);
    void encodeStatement(int index);
    bool encodeForm(ForeignStatement* statement);
    bool encodeRegisterForms(ForeignStatement* statement);
    bool encodePort(ForeignStatement* statement, bool mayBeRegister, bool mayBeValue);
    bool encodeFlow(ForeignStatement* statement);
    bool encodeComputedFlow(ForeignStatement* statement);
    bool encodeSequence(ForeignStatement* statement);
    bool encodeWords(ForeignStatement* statement);
    bool encodeWord(ForeignStatement* statement);
    void encodeDefaultJump(ForeignStatement* statement, int index);
    // Operands; each reports what is wrong.
    bool countIs(const ForeignStatement& statement, int least, int most);
    bool registerAt(const QString& text, int* number, QString* ours);
    bool otherBankRegister(const QString& text, int* number, QString* ours);
    bool valueAt(const QString& text, int maximum, bool isFirst, int* value, QString* ours);
    bool targetAt(const QString& text, int* address, QString* label);
    bool wordAt(const QString& text, const QStringList& words, QString* word);
    bool reportValue(const ForeignValue& value, const QString& text);
    void add(ForeignStatement* statement, const QString& operands, quint32 word);
    void addText(ForeignStatement* statement, const QString& text, quint32 word);
    bool report(eImportMsg_t type, const QStringList& arguments);

    ForeignProgram& m_program;
    const ForeignDialect& m_dialect;
    ImportMessages& m_messages;
    ForeignSymbols m_symbols;
    WordEncoder m_encoder;
    nsProc::ProcDisassembler m_disassembler;
    QHash<QString, Bytes> m_bytes; ///< of the strings and tables that were used
    QStringList m_openTexts;       ///< strings that are being put together
    int m_statement = 0;
    bool m_isBeyond = false; ///< code beyond the last address was reported
};

} // namespace nsImport
