#pragma once

#include <QByteArray>
#include <QStringList>

/// Programs that return where nothing was called, or with the other return, and where a core goes then.
struct ReturnProgram
{
    enum eProcessor_t { picoBlaze3, picoBlaze6, mico8 };

    eProcessor_t processor;
    const char* name;
    QByteArray source;
    int instructions;
    QStringList end; ///< the last fetches and resets, as in a trace, without the words
};

inline QList<ReturnProgram> returnPrograms()
{
    // Calls itself until the counter in the register has a value, and returns as often.
    const auto nested = [](const QByteArray& reg, int levels) {
        return "        RET\n"
               "down:\n"
               "        ADD     " +
               reg + ", 1\n        COMP    " + reg + ", " + QByteArray::number(levels) +
               "\n        CALL    NZ, down\n        RET\n"
               "here:\n"
               "        JUMP    here\n";
    };
    return {
        // The cell holds the address of an instruction: it goes on behind that.
        {ReturnProgram::picoBlaze3,
         "at depth 0 after power-up",
         "        RET\n        ADD     s0, 1\nhere:   JUMP    here\n",
         3,
         {"000", "001", "002"}},
        {ReturnProgram::picoBlaze3,
         "at depth 0, one call and return later",
         "        RET\n        CALL    part\n        RET\npart:    RET\n",
         8,
         {"000", "001", "003", "002", "001", "003", "002", "001"}},
        // What ran last at depth 31 is the innermost return.
        {ReturnProgram::picoBlaze3,
         "at depth 0 after 31 levels",
         "        CALL    down\n" + nested("s0", 31),
         31 * 4 + 4,
         {"005", "001", "006", "006"}},
        // The call again, as the return from an interrupt does not go behind it.
        {ReturnProgram::picoBlaze3,
         "RETI behind a call",
         "        ADD     s0, 1\n        CALL    part\npart:    RETI    DISABLE\n",
         6,
         {"000", "001", "002", "001", "002", "001"}},
        {ReturnProgram::picoBlaze6,
         "at depth 0",
         "        ADD     s0, 1\n        RET\n        ADD     s1, 1\n",
         4,
         {"000", "001", "RESET", "000", "001", "RESET"}},
        // The address is taken as it is, and a call has left the one behind itself.
        {ReturnProgram::mico8,
         "at depth 0 after power-up",
         "        ADD     r1, 1\n        RET\nhere:   JUMP    here\n",
         4,
         {"001", "000", "001", "000"}},
        {ReturnProgram::mico8,
         "at depth 0 after 16 levels",
         "        NOP\n        CALL    down\n" + nested("r1", 16),
         16 * 4 + 6,
         {"006", "002", "006", "006", "006", "006"}},
        {ReturnProgram::mico8,
         "RETI behind a call",
         "        NOP\n        COMP    r1, 1\n        CALL    part\nhere:   JUMP    here\npart:    COMP    r1, 0\n     "
         " "
         " "
         " RETI\n",
         6,
         {"001", "002", "004", "005", "003", "003"}},
    };
}
