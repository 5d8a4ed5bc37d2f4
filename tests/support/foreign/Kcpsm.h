#pragma once

#include "ForeignText.h"

#include <QSet>

namespace foreign {

/// The assemblers KCPSM3 and KCPSM6. The first reading collects what may be used before its line (constants, strings,
/// tables), the second gives addresses to the labels, the third makes the words and renames registers on its way.
class Kcpsm : private AssemblerBase
{
public:
    Kcpsm(bool six, const Options& options, QStringList* errors);

    Image run(const QString& mainFile);

private:
    void read(const QString& file, const QString& mainFolder, int depth);
    void collect();
    void collectName(const Line& line, const QString& name, const QString& ending);
    void layOut();
    int sizeOf(const Statement& statement);
    void encodeAll();
    QVector<quint32> encode(const Statement& statement);
    QVector<quint32> encodeOperation(const Statement& statement);
    QVector<quint32> encodeOfSix(const Statement& statement);
    quint32 encodeFlow(const Statement& statement);
    QVector<quint32> encodeSequence(const Statement& statement);
    void rename(const Statement& statement);
    void fillUnused();

    int registerNumber(const QString& operand) const;
    int registerOf(const Line& line, const QString& operand);
    int numberOf(const Line& line, const QString& operand, int depth = 0);
    int literalOf(const QString& operand) const;
    int targetOf(const Line& line, const QString& operand);
    QVector<int> stringOf(const Line& line, const QString& name, int depth = 0);
    QVector<int> tableOf(const Line& line, const QString& name);
    QVector<int> sequenceOf(const Line& line, const QString& operand);

    bool m_six;
    QVector<Statement> m_statements;
    QMap<QString, QString> m_constants;   ///< value as written, by name
    QMap<QString, QStringList> m_strings; ///< items as written, by name
    QMap<QString, QString> m_tables;      ///< value as written, by name
    QMap<QString, int> m_labels;          ///< address by name
    QMap<QString, int> m_registers;       ///< number by the name that holds at this line
    QMap<QString, int> m_predefined;
    int m_defaultJump = -1;
};

} // namespace foreign
