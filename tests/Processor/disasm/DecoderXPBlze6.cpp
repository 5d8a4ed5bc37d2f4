#include "Disassembler.h"

// Bits that hold nothing, and that are 0 in canonical words: the lowest four of a register form, bits 4 to 6 of a
// shift, all below the condition of a RET, all but the lowest of INT, RETI and REGBANK.
const sDecoder& picoBlaze6Decoder()
{
    static const sDecoder decoder = {
        &picoBlaze6(),
        4,  // bits of a register
        8,  // of a port
        8,  // of a scratchpad address
        12, // of a target
        {
            {0x3F00F, 0x00000, "LOAD {r8}, {r4}"},
            {0x3F000, 0x01000, "LOAD {r8}, {k0}"},
            {0x3F00F, 0x02000, "AND {r8}, {r4}"},
            {0x3F000, 0x03000, "AND {r8}, {k0}"},
            {0x3F00F, 0x04000, "OR {r8}, {r4}"},
            {0x3F000, 0x05000, "OR {r8}, {k0}"},
            {0x3F00F, 0x06000, "XOR {r8}, {r4}"},
            {0x3F000, 0x07000, "XOR {r8}, {k0}"},
            {0x3F00F, 0x0C000, "TEST {r8}, {r4}"},
            {0x3F000, 0x0D000, "TEST {r8}, {k0}"},
            {0x3F00F, 0x0E000, "TESTC {r8}, {r4}"},
            {0x3F000, 0x0F000, "TESTC {r8}, {k0}"},
            {0x3F00F, 0x10000, "ADD {r8}, {r4}"},
            {0x3F000, 0x11000, "ADD {r8}, {k0}"},
            {0x3F00F, 0x12000, "ADDC {r8}, {r4}"},
            {0x3F000, 0x13000, "ADDC {r8}, {k0}"},
            {0x3F00F, 0x16000, "STAR {r8}, {r4}"},
            {0x3F000, 0x17000, "STAR {r8}, {k0}"},
            {0x3F00F, 0x18000, "SUB {r8}, {r4}"},
            {0x3F000, 0x19000, "SUB {r8}, {k0}"},
            {0x3F00F, 0x1A000, "SUBC {r8}, {r4}"},
            {0x3F000, 0x1B000, "SUBC {r8}, {k0}"},
            {0x3F00F, 0x1C000, "COMP {r8}, {r4}"},
            {0x3F000, 0x1D000, "COMP {r8}, {k0}"},
            {0x3F00F, 0x1E000, "COMPC {r8}, {r4}"},
            {0x3F000, 0x1F000, "COMPC {r8}, {k0}"},

            {0x3F00F, 0x08000, "RDPRT {r8}, ({r4})"},
            {0x3F000, 0x09000, "RDPRT {r8}, {p0}"},
            {0x3F00F, 0x2C000, "WRPRT {r8}, ({r4})"},
            {0x3F000, 0x2D000, "WRPRT {r8}, {p0}"},
            {0x3F00F, 0x0A000, "RDMEM {r8}, ({r4})"},
            {0x3F000, 0x0B000, "RDMEM {r8}, {s0}"},
            {0x3F00F, 0x2E000, "WRMEM {r8}, ({r4})"},
            {0x3F000, 0x2F000, "WRMEM {r8}, {s0}"},
            {0x3F000, 0x2B000, "WRPRT {k4}, {c0}"},

            {0x3F000, 0x22000, "JUMP {a0}"},
            {0x3F000, 0x32000, "JUMP Z, {a0}"},
            {0x3F000, 0x36000, "JUMP NZ, {a0}"},
            {0x3F000, 0x3A000, "JUMP C, {a0}"},
            {0x3F000, 0x3E000, "JUMP NC, {a0}"},
            {0x3F00F, 0x26000, "JUMP ({r8}), ({r4})"},
            {0x3F000, 0x20000, "CALL {a0}"},
            {0x3F000, 0x30000, "CALL Z, {a0}"},
            {0x3F000, 0x34000, "CALL NZ, {a0}"},
            {0x3F000, 0x38000, "CALL C, {a0}"},
            {0x3F000, 0x3C000, "CALL NC, {a0}"},
            {0x3F00F, 0x24000, "CALL ({r8}), ({r4})"},
            {0x3FFFF, 0x25000, "RET"},
            {0x3FFFF, 0x31000, "RET Z"},
            {0x3FFFF, 0x35000, "RET NZ"},
            {0x3FFFF, 0x39000, "RET C"},
            {0x3FFFF, 0x3D000, "RET NC"},

            {0x3FFFF, 0x29000, "RETI DISABLE"},
            {0x3FFFF, 0x29001, "RETI ENABLE"},
            {0x3FFFF, 0x28000, "INT DISABLE"},
            {0x3FFFF, 0x28001, "INT ENABLE"},
            {0x3F000, 0x21000, "LOADRET {r8}, {k0}"},
            {0x3FFFF, 0x37000, "REGBANK A"},
            {0x3FFFF, 0x37001, "REGBANK B"},
            {0x3F0FF, 0x14080, "HWBUILD {r8}"},

            {0x3F0FF, 0x14000, "ROLC {r8}"},
            {0x3F0FF, 0x14002, "ROL {r8}"},
            {0x3F0FF, 0x14004, "SLX {r8}"},
            {0x3F0FF, 0x14006, "SL0 {r8}"},
            {0x3F0FF, 0x14007, "SL1 {r8}"},
            {0x3F0FF, 0x14008, "RORC {r8}"},
            {0x3F0FF, 0x1400A, "SRX {r8}"},
            {0x3F0FF, 0x1400C, "ROR {r8}"},
            {0x3F0FF, 0x1400E, "SR0 {r8}"},
            {0x3F0FF, 0x1400F, "SR1 {r8}"},
        },
    };
    return decoder;
}
