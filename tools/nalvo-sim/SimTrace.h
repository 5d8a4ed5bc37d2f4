#pragma once

#include "ProcSimObserver.h"

#include <QtGlobal>

#include <vector>

namespace nsBatch {
class OutputFile;
}
namespace nsProc {
class ProcSimEngine;
}

namespace nsNalvoSim {

/// The trace of a run: one event a line, numbers in upper-case hexadecimal.
///
/// `I aaa wwwww` an executed instruction: address in its range, word; `R pp vv` and `W pp vv` port and value; `S aa vv`
/// scratchpad address and value written; `INT` interrupt entry; `K pp vv` address lines and value of a constant that is
/// written, where that is told apart; `RESET` the core has reset itself. The effects of an instruction follow it.
///
/// The line of each instruction is made once, when the trace starts. A trace that can not be written halts the engine.
class SimTrace : public nsProc::ProcSimObserver
{
public:
    /// Both must outlive the trace. @param file open
    /// @param hasClocks the line of an instruction ends with its first clock, in decimal
    SimTrace(nsBatch::OutputFile* file, nsProc::ProcSimEngine* engine, bool hasClocks = false);

    /// Writes all buffered text, except that of the instruction in progress.
    void flushExecuted() { flush(m_mark); }
    void flush() { flush(m_used); }
    /// A part of the trace could not be written.
    bool hasFailed() const { return m_failed; }

    // ProcSimObserver
    void instruction(int position, qint64 clock) override;
    void refused(int position) override;
    void interruptEntered() override { line("INT\n"); }
    void coreReset() override { line("RESET\n"); }
    void constantWritten(int lines, int value) override { event('K', lines, value); }
    void portRead(int addr, int value) override { event('R', addr, value); }
    void portWritten(int addr, int value) override { event('W', addr, value); }
    void scrpdWritten(int addr, int value) override { event('S', addr, value & 0xFF); }

private:
    static constexpr int pieceSize = 1 << 18;
    /// The events of one instruction take far less.
    static constexpr int reserve = 1 << 10;

    struct sLine_t
    {
        char text[23];
        char size;
    };

    static int hex(char* text, int value, int digits);
    static int line(char* text, char kind, int first, int firstDigits, int second, int secondDigits);
    void event(char kind, int addr, int value) { m_used += line(m_text.data() + m_used, kind, addr, 2, value, 2); }
    void line(const char* text);
    void addClock(qint64 clock);
    void flush(int end);

    nsBatch::OutputFile* m_file;
    nsProc::ProcSimEngine* m_engine;
    std::vector<sLine_t> m_lines; ///< of the instructions, by position
    std::vector<char> m_text;
    int m_used = 0;
    int m_mark = 0; ///< where the last instruction starts
    bool m_hasClocks;
    bool m_failed = false;
};

} // namespace nsNalvoSim
