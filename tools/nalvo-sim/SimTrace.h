#pragma once

#include <vector>

namespace nsBatch {
class OutputFile;
}

namespace nsNalvoSim {

/// The trace of a run: one event a line, numbers in upper-case hexadecimal.
///
/// `I aaa wwwww` an executed instruction: address in its range, word; `R pp vv` and `W pp vv` port and value; `S aa vv`
/// scratchpad address and value written; `INT` interrupt entry. The effects of an instruction follow it.
class SimTrace
{
public:
    /// @param file open, or null for no trace; not owned
    void setFile(nsBatch::OutputFile* file);
    bool isOn() const { return m_file != nullptr; }

    void instruction(int addr, int word)
    {
        m_mark = m_used;
        line('I', addr, 3, word, 5);
    }
    void interrupt();
    void read(int port, int value) { line('R', port, 2, value, 2); }
    void written(int port, int value) { line('W', port, 2, value, 2); }
    void scrpd(int addr, int value) { line('S', addr, 2, value, 2); }
    /// The last instruction was not executed after all.
    void takeBack() { m_used = m_mark; }
    /// Writes the buffered text when there is enough of it; to be called between instructions.
    void writePiece()
    {
        if (m_used >= pieceSize)
            flush();
    }
    /// Writes all buffered text, except that of the instruction in progress.
    void flushExecuted() { flush(m_mark); }
    void flush() { flush(m_used); }
    /// A part of the trace could not be written.
    bool hasFailed() const { return m_failed; }

private:
    static constexpr int pieceSize = 1 << 16;
    /// The events of one instruction take far less.
    static constexpr int reserve = 1 << 10;

    void line(char kind, int first, int firstDigits, int second, int secondDigits);
    void hex(int value, int digits);
    void flush(int end);

    nsBatch::OutputFile* m_file = nullptr;
    std::vector<char> m_text;
    int m_used = 0;
    int m_mark = 0; ///< where the last instruction starts
    bool m_failed = false;
};

} // namespace nsNalvoSim
