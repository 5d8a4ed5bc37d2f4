#pragma once

#include <QStringList>

#include <map>
#include <vector>

namespace nsProc {

/// The list of a FIFO: lines, of which nearly all are numbers, and one pointer that reading and writing share.
///
/// A program can write millions of lines: a number costs four bytes and no text. What a user types is kept as it was
/// typed. There is always at least one line. Beyond maxLines lines, the oldest quarter is dropped.
class ProcSimFifoLines
{
public:
    static constexpr int maxLines = 1 << 24;

    /// @param base 8, 10 or 16
    void setBase(int base);
    /// Replaces the line at the pointer, or appends one if there is none, and moves the pointer on by one. If there is
    /// no line at the new pointer, an empty one is appended.
    void write(int value);
    /// @return false, with the pointer unchanged, if there is no line at the pointer, or one that holds no number
    bool read(int* value);
    void resetPointer() { m_pointer = 0; }
    /// A line number. After an edit has shortened the list, there may be no such line.
    int pointer() const { return m_pointer; }
    /// Replaces the list by these values and sets the pointer to the first of them.
    void assign(const unsigned int* values, int count);

    int count() const { return static_cast<int>(m_lines.size()); }
    QString text(int line) const;
    /// Replaces lines by others, as an edit in a text does. The line number of the pointer does not change.
    /// @param first index, @param removed how many of the present lines go; both within the list
    void replace(int first, int removed, const QStringList& texts);

    /// @return number of lines that have been dropped so far to limit the memory
    long long dropped() const { return m_dropped; }
    /// The lines that have changed since the last call.
    /// @return false if there are none. Lines that were appended count as changed
    bool takeChanged(int* first, int* last);

private:
    /// Marks in place of a number.
    enum eMark_t { eMarkEmpty = -1, eMarkText = -2 };

    int lineOf(int index, const QString& text);
    void forget(int index);
    void touch(int first, int last);
    void appendEmptyAtEnd();
    void dropOldest();

    std::vector<int> m_lines = {eMarkEmpty};
    std::map<int, QString> m_texts; ///< lines that are no number, or not written as a number is shown
    int m_base = 16;
    int m_pointer = 0;
    int m_changedFirst = 0;
    int m_changedLast = 0;
    long long m_dropped = 0;
};

} // namespace nsProc
