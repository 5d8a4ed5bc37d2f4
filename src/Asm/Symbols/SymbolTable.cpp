#include "SymbolTable.h"

#include <algorithm>

namespace nsModAsmFe {

namespace {

/// A name holds no blank, so that namespace and name stay apart.
QString keyText(const QString& nameSpace, const QString& name)
{
    return nameSpace + QLatin1Char(' ') + name;
}

} // namespace

int SymbolTable::add(eSymbolKind_t kind, const QString& nameSpace, const QString& name)
{
    const Key key(kind, keyText(nameSpace, name));
    const auto known = m_index.constFind(key);
    if (known != m_index.constEnd())
        return *known;
    sSymbol symbol;
    symbol.kind = kind;
    symbol.nameSpace = nameSpace;
    symbol.name = name;
    m_symbols.append(symbol);
    m_index.insert(key, m_symbols.size() - 1);
    return m_symbols.size() - 1;
}

void SymbolTable::sortPlaces()
{
    std::stable_sort(m_places.begin(), m_places.end(),
                     [](const sSymbolPlace& a, const sSymbolPlace& b) { return a.isBefore(b.file, b.line, b.column); });
}

int SymbolTable::find(eSymbolKind_t kind, const QString& nameSpace, const QString& name) const
{
    return m_index.value(Key(kind, keyText(nameSpace, name)), -1);
}

QVector<int> SymbolTable::named(const QString& name) const
{
    QVector<int> result;
    for (int i = 0; i < m_symbols.size(); ++i) {
        if (m_symbols.at(i).kind != symbolFile && m_symbols.at(i).name == name)
            result.append(i);
    }
    return result;
}

const sSymbolPlace* SymbolTable::placeAt(int file, int line, int column) const
{
    const auto after =
        std::partition_point(m_places.cbegin(), m_places.cend(), [file, line, column](const sSymbolPlace& place) {
            return place.isBefore(file, line, column + 1);
        });
    if (after == m_places.cbegin())
        return nullptr;
    const sSymbolPlace& place = *(after - 1);
    const bool isIn = place.file == file && place.line == line && column <= place.column + place.length;
    return isIn ? &place : nullptr;
}

QVector<sSymbolPlace> SymbolTable::placesOf(int symbol) const
{
    QVector<sSymbolPlace> result;
    std::copy_if(m_places.cbegin(), m_places.cend(), std::back_inserter(result),
                 [symbol](const sSymbolPlace& place) { return place.symbol == symbol; });
    return result;
}

const sSymbolPlace* SymbolTable::definitionOf(int symbol) const
{
    const auto place = std::find_if(m_places.cbegin(), m_places.cend(), [symbol](const sSymbolPlace& candidate) {
        return candidate.symbol == symbol && candidate.isDefinition;
    });
    return place != m_places.cend() ? &*place : nullptr;
}

QVector<const sSymbolPlace*> SymbolTable::definitions() const
{
    QVector<const sSymbolPlace*> result(m_symbols.size(), nullptr);
    for (const sSymbolPlace& place : m_places) {
        if (place.isDefinition && result.at(place.symbol) == nullptr)
            result[place.symbol] = &place;
    }
    return result;
}

QString SymbolTable::nameSpaceAt(int file, int line) const
{
    const auto after =
        std::partition_point(m_nameSpaces.cbegin(), m_nameSpaces.cend(), [file, line](const sNameSpaceStart& start) {
            return start.file < file || (start.file == file && start.line <= line);
        });
    return after != m_nameSpaces.cbegin() && (after - 1)->file == file ? (after - 1)->nameSpace : QString();
}

void SymbolTable::setNameSpace(int file, int line, const QString& nameSpace)
{
    const bool isSame = m_nameSpaces.isEmpty() || m_nameSpaces.last().file != file
                            ? nameSpace.isEmpty()
                            : m_nameSpaces.last().nameSpace == nameSpace;
    if (!isSame)
        m_nameSpaces.append({file, line, nameSpace});
}

} // namespace nsModAsmFe
