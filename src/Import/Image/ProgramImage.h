#pragma once

#include <QDate>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QTime>

#include <vector>

namespace nsImport {

/// The words of a program memory by address, with the place of each in the file that it comes from. An address may be
/// without a word. A value: it can be copied.
class ProgramImage
{
public:
    /// Most addresses of an image, so that a typing error in a file can not use up the memory of the machine.
    static constexpr int maxSize = 1 << 20;

    /// Where a word comes from.
    struct Place
    {
        QString file;
        int line = 0; ///< counted from 1; 0 if it has none
        QString text; ///< of the line, as far as it shows an instruction; may be empty
    };
    /// What setWord() has done.
    enum eSet_t {
        eSetDone,
        eSetConflict,   ///< there is another word at this address, which stays
        eSetOutOfRange, ///< the address is below 0 or beyond maxSize
    };

    /// Puts a word at an address. The same word once more is no fault: the first place stays.
    /// @param line of the file, counted from 1; 0 if it has none
    /// @param file index of addFile()
    eSet_t setWord(int address, quint32 word, int line = 0, int file = 0);
    /// The text of the line of a word, such as a listing has it.
    void setText(int address, const QString& text) { m_texts.insert(address, text); }
    /// @return index for setWord()
    int addFile(const QString& name);

    bool contains(int address) const;
    /// @return 0 if there is none
    quint32 word(int address) const { return contains(address) ? m_words[size_t(address)].value : 0; }
    Place place(int address) const;

    /// One more than the highest address with a word.
    int size() const { return int(m_words.size()); }
    /// Words of the memory that it is for: what the file tells, or at least what is used.
    int memorySize() const { return depth > size() ? depth : size(); }
    /// Number of words.
    int count() const { return m_count; }
    bool isEmpty() const { return m_count == 0; }

    int wordBits = 18; ///< width of a word
    int depth = 0;     ///< words of the memory, as far as the file tells; else 0
    QDate date;        ///< when the image was made, as far as the file tells; else invalid
    QTime time;        ///< likewise

private:
    struct Word
    {
        quint32 value = 0;
        int line = -1; ///< -1: there is no word
        int file = 0;
    };

    std::vector<Word> m_words;
    int m_count = 0;
    QStringList m_files;
    QHash<int, QString> m_texts;
};

} // namespace nsImport
