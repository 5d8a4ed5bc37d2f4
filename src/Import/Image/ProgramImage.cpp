#include "ProgramImage.h"

namespace nsImport {

ProgramImage::eSet_t ProgramImage::setWord(int address, quint32 word, int line, int file)
{
    if (address < 0 || address >= maxSize)
        return eSetOutOfRange;
    if (address >= size())
        m_words.resize(size_t(address) + 1);
    Word& entry = m_words[size_t(address)];
    if (entry.line >= 0)
        return entry.value == word ? eSetDone : eSetConflict;
    entry.value = word;
    entry.line = line;
    entry.file = file;
    ++m_count;
    return eSetDone;
}

int ProgramImage::addFile(const QString& name)
{
    const int known = m_files.indexOf(name);
    if (known >= 0)
        return known;
    m_files.append(name);
    return m_files.size() - 1;
}

bool ProgramImage::contains(int address) const
{
    return address >= 0 && address < size() && m_words[size_t(address)].line >= 0;
}

ProgramImage::Place ProgramImage::place(int address) const
{
    if (!contains(address))
        return {};
    const Word& entry = m_words[size_t(address)];
    return {m_files.value(entry.file), entry.line, m_texts.value(address)};
}

} // namespace nsImport
