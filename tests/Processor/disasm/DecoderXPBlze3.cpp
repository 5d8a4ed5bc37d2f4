#include "Disassembler.h"

// Bits that hold nothing, and that are 0 in canonical words: the lowest four of a register form, the upper two of
// a scratchpad address, bits 4 to 7 of a shift, bits 10 and 11 of a jump without a condition, all below the condition
// of a RET.
const sDecoder& picoBlaze3Decoder()
{
    static const sDecoder decoder = {
        &picoBlaze3(),
        4,  // bits of a register
        8,  // of a port
        6,  // of a scratchpad address
        10, // of a target
        {
            {0x3F000, 0x00000, "LOAD {r8}, {k0}"},
            {0x3F00F, 0x01000, "LOAD {r8}, {r4}"},
            {0x3F000, 0x0A000, "AND {r8}, {k0}"},
            {0x3F00F, 0x0B000, "AND {r8}, {r4}"},
            {0x3F000, 0x0C000, "OR {r8}, {k0}"},
            {0x3F00F, 0x0D000, "OR {r8}, {r4}"},
            {0x3F000, 0x0E000, "XOR {r8}, {k0}"},
            {0x3F00F, 0x0F000, "XOR {r8}, {r4}"},
            {0x3F000, 0x12000, "TEST {r8}, {k0}"},
            {0x3F00F, 0x13000, "TEST {r8}, {r4}"},
            {0x3F000, 0x14000, "COMP {r8}, {k0}"},
            {0x3F00F, 0x15000, "COMP {r8}, {r4}"},
            {0x3F000, 0x18000, "ADD {r8}, {k0}"},
            {0x3F00F, 0x19000, "ADD {r8}, {r4}"},
            {0x3F000, 0x1A000, "ADDC {r8}, {k0}"},
            {0x3F00F, 0x1B000, "ADDC {r8}, {r4}"},
            {0x3F000, 0x1C000, "SUB {r8}, {k0}"},
            {0x3F00F, 0x1D000, "SUB {r8}, {r4}"},
            {0x3F000, 0x1E000, "SUBC {r8}, {k0}"},
            {0x3F00F, 0x1F000, "SUBC {r8}, {r4}"},

            {0x3F000, 0x04000, "RDPRT {r8}, {p0}"},
            {0x3F00F, 0x05000, "RDPRT {r8}, ({r4})"},
            {0x3F000, 0x2C000, "WRPRT {r8}, {p0}"},
            {0x3F00F, 0x2D000, "WRPRT {r8}, ({r4})"},
            {0x3F0C0, 0x06000, "RDMEM {r8}, {s0}"},
            {0x3F00F, 0x07000, "RDMEM {r8}, ({r4})"},
            {0x3F0C0, 0x2E000, "WRMEM {r8}, {s0}"},
            {0x3F00F, 0x2F000, "WRMEM {r8}, ({r4})"},

            {0x3FC00, 0x34000, "JUMP {a0}"},
            {0x3FC00, 0x35000, "JUMP Z, {a0}"},
            {0x3FC00, 0x35400, "JUMP NZ, {a0}"},
            {0x3FC00, 0x35800, "JUMP C, {a0}"},
            {0x3FC00, 0x35C00, "JUMP NC, {a0}"},
            {0x3FC00, 0x30000, "CALL {a0}"},
            {0x3FC00, 0x31000, "CALL Z, {a0}"},
            {0x3FC00, 0x31400, "CALL NZ, {a0}"},
            {0x3FC00, 0x31800, "CALL C, {a0}"},
            {0x3FC00, 0x31C00, "CALL NC, {a0}"},
            {0x3FFFF, 0x2A000, "RET"},
            {0x3FFFF, 0x2B000, "RET Z"},
            {0x3FFFF, 0x2B400, "RET NZ"},
            {0x3FFFF, 0x2B800, "RET C"},
            {0x3FFFF, 0x2BC00, "RET NC"},

            {0x3FFFF, 0x3C000, "INT DISABLE"},
            {0x3FFFF, 0x3C001, "INT ENABLE"},
            {0x3FFFF, 0x38000, "RETI DISABLE"},
            {0x3FFFF, 0x38001, "RETI ENABLE"},

            {0x3F0FF, 0x20000, "ROLC {r8}"},
            {0x3F0FF, 0x20002, "ROL {r8}"},
            {0x3F0FF, 0x20004, "SLX {r8}"},
            {0x3F0FF, 0x20006, "SL0 {r8}"},
            {0x3F0FF, 0x20007, "SL1 {r8}"},
            {0x3F0FF, 0x20008, "RORC {r8}"},
            {0x3F0FF, 0x2000A, "SRX {r8}"},
            {0x3F0FF, 0x2000C, "ROR {r8}"},
            {0x3F0FF, 0x2000E, "SR0 {r8}"},
            {0x3F0FF, 0x2000F, "SR1 {r8}"},
        },
    };
    return decoder;
}
