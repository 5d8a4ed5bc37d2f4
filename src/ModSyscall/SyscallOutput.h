#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class QTextDecoder;

namespace nsModSyscall {

/// What a program writes, on its way to the view: bytes of two streams become text that can be shown, and only the last
/// lines of it are kept, however fast the program writes and however slow the view is.
///
/// The bytes are UTF-8; a character may be split over any number of reads. What is none becomes U+FFFD. Control
/// characters become their pictures, a carriage return a line end, and a long line is broken.
class SyscallOutput
{
public:
    enum eStream_t { streamOut, streamErr, streamCount };

    static constexpr int maxLines = 10000;     ///< that are kept
    static constexpr int maxLineLength = 1000; ///< characters, after which a line is broken

    SyscallOutput();
    ~SyscallOutput();

    /// Forgets all; the next text is the first of a program.
    void clear();
    void add(eStream_t stream, const QByteArray& bytes);
    /// The program has ended: nothing follows that could complete a character.
    void end();

    bool isEmpty() const { return m_start == m_text.size(); }
    /// Takes the oldest text that waits.
    /// @param size characters at the most, from 2 on
    QString take(int size);
    /// Since the last call, lines were dropped that the view has not got: what the view shows is older than all that
    /// is kept.
    bool takeOverrun();
    /// Memory that the text takes, in characters.
    int size() const { return m_text.size(); }

private:
    struct sStream_t
    {
        std::unique_ptr<QTextDecoder> decoder;
        bool afterReturn = false; ///< the last character was a carriage return, which has ended a line
    };

    void append(sStream_t* stream, const QString& text);
    void appendLineEnd();
    void dropOldLines();

    sStream_t m_streams[streamCount];
    QString m_text;
    int m_start = 0;  ///< first character that waits
    int m_lines = 0;  ///< line ends that wait
    int m_column = 0; ///< length of the last line
    bool m_overrun = false;
};

} // namespace nsModSyscall
