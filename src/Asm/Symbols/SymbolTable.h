#pragma once

#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

namespace nsModAsmFe {

enum eSymbolKind_t {
    symbolLabel,
    symbolConstant,
    symbolNameSpace,
    symbolDevice, ///< an IO device that `#SET` directives declare
    symbolFile,   ///< a file that a `#SET` names, such as a template
};

/// A name of the program, and what the last run has found out about it.
struct sSymbol
{
    eSymbolKind_t kind = symbolLabel;
    QString nameSpace;     ///< of a label or a constant; empty outside of all
    QString name;          ///< case as written; of a namespace with those around it, of a file its absolute path
    bool hasValue = false; ///< a constant with a number, or a label with an instruction
    int value = 0;         ///< number of a constant, address of a label in its page
    int page = -1;         ///< page of a label, from 0 on; -1 in the shared range
    QString text;          ///< value of a constant as it is written

    /// With the namespace in front.
    QString fullName() const { return nameSpace.isEmpty() ? name : nameSpace + QLatin1String("::") + name; }
};

/// A place where a symbol stands.
struct sSymbolPlace
{
    int file = 0;              ///< index of the source
    int line = 0;              ///< from 0 on
    int column = 0;            ///< of the first character, from 0 on
    int length = 0;            ///< characters
    int symbol = 0;            ///< index of the symbol
    bool isDefinition = false; ///< it is declared here

    bool isBefore(int otherFile, int otherLine, int otherColumn) const
    {
        return file != otherFile ? file < otherFile : line != otherLine ? line < otherLine : column < otherColumn;
    }
};

/// The names of a program with all their places, as a value: it stays when the program is gone.
///
/// The places are those that the assembler sees: nothing in comments, in strings or in text that a condition skips. A
/// constant that is defined several times has several definitions.
class SymbolTable
{
public:
    /// Adds a symbol, or finds it. @return its index
    int add(eSymbolKind_t kind, const QString& nameSpace, const QString& name);
    /// Adds a place. After the last one, call sortPlaces().
    void addPlace(const sSymbolPlace& place) { m_places.append(place); }
    void sortPlaces();

    /// -1 if there is none; names are compared with case.
    int find(eSymbolKind_t kind, const QString& nameSpace, const QString& name) const;
    /// All symbols of this name, whatever kind and namespace; files are not among them.
    QVector<int> named(const QString& name) const;
    /// The place that the column is in, or right after; null if there is none.
    const sSymbolPlace* placeAt(int file, int line, int column) const;
    /// In the order of the sources.
    QVector<sSymbolPlace> placesOf(int symbol) const;
    /// The first place that defines the symbol; null if there is none.
    const sSymbolPlace* definitionOf(int symbol) const;
    /// definitionOf() of all symbols, by their index.
    QVector<const sSymbolPlace*> definitions() const;
    const sSymbol& symbol(int index) const { return m_symbols.at(index); }
    sSymbol& symbol(int index) { return m_symbols[index]; }
    const QVector<sSymbol>& symbols() const { return m_symbols; }
    /// The namespace of each line of a source, as far as the source is read.
    QString nameSpaceAt(int file, int line) const;
    void setNameSpace(int file, int line, const QString& nameSpace);

    QStringList files;        ///< absolute, in the order of the project
    QString processor;        ///< display name; empty without one
    bool isAssembled = false; ///< the last run has assembled the program

private:
    struct sNameSpaceStart
    {
        int file;
        int line;
        QString nameSpace;
    };

    using Key = QPair<int, QString>;

    QVector<sSymbol> m_symbols;
    QHash<Key, int> m_index; ///< by kind and full name
    QVector<sSymbolPlace> m_places;
    QVector<sNameSpaceStart> m_nameSpaces; ///< where the namespace changes, in order
};

} // namespace nsModAsmFe
