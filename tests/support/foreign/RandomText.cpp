#include "RandomText.h"

#include "RandomDisguise.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace foreign {

RandomText::RandomText(unsigned seed, const QStringList& traps, bool caseTells)
    : m_random(seed)
    , m_traps(traps)
    , m_caseTells(caseTells)
{
}

QString RandomText::newName()
{
    static const QStringList innocent = {"start", "wait_for_it",
                                         "Send",  "_next",
                                         "value", "MAX_count",
                                         "isr2",  "x__y",
                                         "mode",  "a_name_that_is_long_enough_to_reach_beyond_the_column_of_operands",
                                         "t1",    "PORT_out"};
    for (;;) {
        QString name;
        const int kind = below(10);
        if (kind < 4 && !m_traps.isEmpty()) {
            name = pick(m_traps);
        } else if (kind < 6 && m_caseTells && !m_names.isEmpty()) {
            name = pick(m_names);
            name = chance(50) ? name.toUpper() : name.toLower();
        } else {
            name = pick(innocent);
            if (chance(70))
                name += QString::number(below(500));
        }
        const QString key = m_caseTells ? name : name.toLower();
        if (m_used.contains(key))
            continue;
        // A variant of a trap may be a word that the dialect has for itself.
        m_used.insert(key);
        m_names.append(name);
        return name;
    }
}

void RandomText::scatter(int words, int size, int reserved)
{
    m_pieceSize = size;
    m_pieceEnd = size;
    m_pieces.clear();
    for (int piece = 1; piece < words / size - reserved; ++piece)
        m_pieces.append(piece * size);
}

int RandomText::nextPiece()
{
    if (m_pieces.isEmpty())
        return -1;
    const int start = m_pieces.takeAt(below(m_pieces.size()));
    m_pieceEnd = start + m_pieceSize;
    return start;
}

QString RandomText::word(const QString& capitals)
{
    const int kind = below(10);
    if (kind < 6)
        return capitals;
    return kind < 9 ? capitals.toLower() : capitals.left(1) + capitals.mid(1).toLower();
}

QString RandomText::hex(int number, int digits)
{
    const QString text = QString("%1").arg(number, digits, 16, QChar('0'));
    return chance(60) ? text.toUpper() : text;
}

QString RandomText::digits(int number, int base, int width)
{
    return QString("%1").arg(number, width, base, QChar('0'));
}

QChar RandomText::letter()
{
    for (;;) {
        const char c = char(' ' + below('~' - ' ' + 1));
        if (c != '"')
            return c;
    }
}

QString RandomText::gap()
{
    static const QStringList gaps = {" ", " ", "  ", "\t", "        ", " \t"};
    return pick(gaps);
}

QString RandomText::mayGap()
{
    return chance(60) ? QString() : gap();
}

QString RandomText::commentText()
{
    static const QStringList texts = {"",
                                      " plain",
                                      " a \"quote",
                                      " don't",
                                      "; twice",
                                      " 20 \xB0"
                                      "C, 3 \xB5s",
                                      " #EQU x, 1",
                                      " LOAD s0, 00",
                                      " \\navSep \"x\"",
                                      " label:",
                                      " 100% ~ $1F",
                                      "\ttab",
                                      " (s1) [1, 2]",
                                      "----------------"};
    return pick(texts);
}

namespace {

RandomProgram plainProgram(Dialect dialect, unsigned seed)
{
    switch (dialect) {
    case Dialect::Kcpsm3:
        return randomKcpsm(false, seed);
    case Dialect::Kcpsm6:
        return randomKcpsm(true, seed);
    case Dialect::PBlazIde:
        return randomPBlazIde(seed);
    case Dialect::Mico8Vendor:
        return randomMico8(false, seed);
    case Dialect::Mico8Gnu:
        return randomMico8(true, seed);
    }
    return {};
}

} // namespace

RandomProgram randomProgram(Dialect dialect, unsigned seed)
{
    const RandomProgram program = plainProgram(dialect, seed);
    return seed % 2 == 0 ? program : disguised(program, dialect, seed);
}

QString writeProgram(const RandomProgram& program, const QString& folder)
{
    for (const SourceFile& source : program.files) {
        const QString path = QDir(folder).filePath(source.name);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(source.text) != source.text.size())
            return {};
    }
    return QDir(folder).filePath(program.files.value(0).name);
}

} // namespace foreign
