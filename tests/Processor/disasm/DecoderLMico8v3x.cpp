#include "Disassembler.h"

// Bits that hold nothing, and that are 0 in canonical words: the lowest three of a register form (but in rotates
// and accesses, where they tell the instruction), all operand bits of RET, RETI and of the flag instructions.
const sDecoder& mico8Decoder()
{
    static const sDecoder decoder = {
        &mico8(),
        5,  // bits of a register
        5,  // of a port: what lies above belongs to the register
        5,  // of a scratchpad address, likewise
        12, // of a distance
        {
            {0x3E007, 0x00000, "SUB {r8}, {r3}"},
            {0x3E000, 0x02000, "SUB {r8}, {k0}"},
            {0x3E007, 0x04000, "SUBC {r8}, {r3}"},
            {0x3E000, 0x06000, "SUBC {r8}, {k0}"},
            {0x3E007, 0x08000, "ADD {r8}, {r3}"},
            {0x3E000, 0x0A000, "ADD {r8}, {k0}"},
            {0x3E007, 0x0C000, "ADDC {r8}, {r3}"},
            {0x3E000, 0x0E000, "ADDC {r8}, {k0}"},
            {0x3E007, 0x10000, "LOAD {r8}, {r3}"},
            {0x3E000, 0x12000, "LOAD {r8}, {k0}"},
            {0x3E007, 0x14000, "AND {r8}, {r3}"},
            {0x3E000, 0x16000, "AND {r8}, {k0}"},
            {0x3E007, 0x18000, "OR {r8}, {r3}"},
            {0x3E000, 0x1A000, "OR {r8}, {k0}"},
            {0x3E007, 0x1C000, "XOR {r8}, {r3}"},
            {0x3E000, 0x1E000, "XOR {r8}, {k0}"},
            {0x3E007, 0x20000, "COMP {r8}, {r3}"},
            {0x3E000, 0x22000, "COMP {r8}, {k0}"},
            {0x3E007, 0x24000, "TEST {r8}, {r3}"},
            {0x3E000, 0x26000, "TEST {r8}, {k0}"},

            {0x3E007, 0x28000, "ROR {r8}, {r3}"},
            {0x3E007, 0x28001, "ROL {r8}, {r3}"},
            {0x3E007, 0x28002, "RORC {r8}, {r3}"},
            {0x3E007, 0x28003, "ROLC {r8}, {r3}"},

            {0x3E007, 0x2E000, "WRPRT {r8}, {p3}"},
            {0x3E007, 0x2E002, "WRPRT {r8}, ({r3})"},
            {0x3E007, 0x2E001, "RDPRT {r8}, {p3}"},
            {0x3E007, 0x2E003, "RDPRT {r8}, ({r3})"},
            {0x3E007, 0x2E004, "WRMEM {r8}, {s3}"},
            {0x3E007, 0x2E006, "WRMEM {r8}, ({r3})"},
            {0x3E007, 0x2E005, "RDMEM {r8}, {s3}"},
            {0x3E007, 0x2E007, "RDMEM {r8}, ({r3})"},

            {0x3F000, 0x3B000, "JUMP {o0}"},
            {0x3F000, 0x30000, "JUMP Z, {o0}"},
            {0x3F000, 0x31000, "JUMP NZ, {o0}"},
            {0x3F000, 0x32000, "JUMP C, {o0}"},
            {0x3F000, 0x33000, "JUMP NC, {o0}"},
            {0x3F000, 0x38000, "CALL {o0}"},
            {0x3F000, 0x34000, "CALL Z, {o0}"},
            {0x3F000, 0x35000, "CALL NZ, {o0}"},
            {0x3F000, 0x36000, "CALL C, {o0}"},
            {0x3F000, 0x37000, "CALL NC, {o0}"},
            {0x3FFFF, 0x39000, "RET"},
            {0x3FFFF, 0x3A000, "RETI"},

            {0x3FFFF, 0x2C000, "CLR C"},
            {0x3FFFF, 0x2C001, "SET C"},
            {0x3FFFF, 0x2C002, "CLR Z"},
            {0x3FFFF, 0x2C003, "SET Z"},
            {0x3FFFF, 0x2C004, "INT DISABLE"},
            {0x3FFFF, 0x2C005, "INT ENABLE"},
        },
    };
    return decoder;
}
