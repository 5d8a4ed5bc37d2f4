#pragma once

#include "ForeignExpression.h"
#include "ForeignProgram.h"
#include "ImportMsg.h"
#include "ImportNames.h"
#include "ProgramImage.h"
#include "RegisterNames.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QSet>

namespace nsImport {

/// The moment when the old tool ran, for names that stand for it.
struct ForeignStamp
{
    /// That of this run: a guess. SOURCE_DATE_EPOCH is taken instead, in UTC, if it is set.
    ForeignStamp();
    /// As the log or listing of the old tool says; a guess if the image does not tell it.
    static ForeignStamp ofImage(const ProgramImage& image);

    QDateTime moment;
    bool isKnown = false; ///< else it is a guess
};

/// The names of a foreign program: what they stand for at each line, and what they are called in the result.
class ForeignSymbols : public ForeignScope
{
    Q_DECLARE_TR_FUNCTIONS(nsImport::ForeignSymbols)

public:
    /// @param program, messages not owned
    ForeignSymbols(ForeignProgram& program, const ForeignStamp& stamp, ImportMessages& messages);

    /// Finds all definitions, and gives each a name in the result.
    void collect();
    /// From now on labels have addresses, and constants can be calculated with them. The statements are gone through
    /// once more from the first one.
    void setPlaced();
    /// The statement whose operands are looked at. To be called for all statements in their order.
    void enter(int statement);

    ForeignValue evaluate(const QString& text);
    /// Number of a register at this place, -1 if it is none. @param ours its name in the result
    int registerOf(const QString& text, QString* ours);
    /// The string or table of this name; -1 if there is none.
    int textOf(const QString& name);
    /// A new label of the result for an address.
    QString makeLabel(const QString& wanted);
    /// The time or date as text; null if this is not the name of one.
    QString stampText(const QString& name);
    /// A label of the program at this address; empty if there is none. It is used from now on.
    QString useLabelAt(int address);
    void setLabelAddress(int symbol, int address);

    // ForeignScope
    ForeignValue nameValue(const QString& name) override;
    ForeignValue labelValue(const QString& name) override;
    int here() const override;
    bool isUtf8() const override;
    void nameIsNumber(const QString& name) override;

private:
    void collectLabels(int index);
    void collectDefinition(int index);
    void collectRegister(int index);
    void checkRenames();
    void findAliases();
    void nameAll();
    int add(ForeignSymbol::eKind_t kind, const QString& name, int statement);
    void checkName(const QString& name);
    bool isUnique(const ForeignSymbol& symbol);
    bool isLocalLabel(const ForeignSymbol& symbol) const;
    int find(const QString& name, int kinds);
    bool isAmbiguous(int symbol) const;
    QVector<int>::const_iterator afterHere(const QVector<int>& symbols) const;
    int version(const QVector<int>& symbols, int kinds) const;
    int localLabel(const QString& name) const;
    int known(const QString& name);
    ForeignValue valueOf(int symbol);
    void report(eImportMsg_t type, const QStringList& arguments, int statement = -1);

    ForeignProgram& m_program;
    const ForeignDialect& m_dialect;
    ForeignStamp m_stamp;
    ImportMessages& m_messages;
    ImportNames m_names;
    RegisterNames m_registers;
    QHash<QString, QVector<int>> m_byName;
    QHash<QString, QVector<int>> m_byLowerCase;
    QSet<QString> m_spelledTwice;  ///< in lower case: names that are defined in more than one spelling
    QHash<QString, int> m_renamed; ///< register symbols by name and number
    QVector<int> m_renames;        ///< statements that give a register another name
    QHash<QString, QVector<int>> m_locals;
    QHash<int, int> m_labelAt;
    QSet<QString> m_told;
    int m_statement = -1;
    bool m_placed = false;
    int m_depth = 0; ///< of constants that depend on each other
};

} // namespace nsImport
