#pragma once

#include "RandomForeign.h"

#include <QSet>

#include <random>

namespace foreign {

/// What the generators share: chance, names, spellings, and the text that grows line by line.
class RandomText
{
protected:
    /// @param caseTells names that differ by case alone are two names
    RandomText(unsigned seed, const QStringList& traps, bool caseTells);

    /// 0 to count - 1
    int below(int count) { return int(m_random() % unsigned(count)); }

    bool chance(int percent) { return below(100) < percent; }

    template <typename List>
    auto pick(const List& list)
    {
        return list[below(int(list.size()))];
    }

    /// A name that no one has: a trap, a variant of an earlier one, or an innocent one.
    QString newName();

    /// Names that newName() must not give.
    void reserve(const QStringList& names) { m_used.unite(QSet<QString>(names.begin(), names.end())); }

    /// A word of the dialect in a spelling of its own.
    QString word(const QString& capitals);

    QString hex(int number, int digits);
    QString digits(int number, int base, int width);

    /// A printable character, without double quote.
    QChar letter();

    /// Divides the memory into pieces that the code goes to in any order; the first is the one at 0.
    /// @param words of the memory; @param size words of a piece; @param reserved pieces at its end that stay free
    void scatter(int words, int size, int reserved);
    bool isScattered() const { return m_pieceSize > 0; }
    /// A free piece, from now on the present one; -1 if there is none.
    int nextPiece();
    /// Do this many words fit into the present piece?
    bool fits(int address, int words) const { return !isScattered() || address + words <= m_pieceEnd; }

    /// White space, at least one.
    QString gap();

    /// White space or none.
    QString mayGap();

    /// Text of a comment, without what begins it: nothing in it counts.
    QString commentText();

    std::mt19937 m_random;

private:
    QVector<int> m_pieces; ///< addresses of the free ones
    int m_pieceSize = 0;   ///< 0: the memory is not divided
    int m_pieceEnd = 0;    ///< of the present one
    QStringList m_traps;
    bool m_caseTells;
    QStringList m_names;
    QSet<QString> m_used; ///< in small letters if case does not tell
};

RandomProgram randomKcpsm(bool six, unsigned seed);
RandomProgram randomPBlazIde(unsigned seed);
RandomProgram randomMico8(bool gnu, unsigned seed);

} // namespace foreign
