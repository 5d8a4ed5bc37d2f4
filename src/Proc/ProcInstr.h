#pragma once

#include "eOpcode.h"

namespace nsProc {

/// The forms that an instruction can have, with the order of the checks of its arguments.
enum eInstrForm_t {
    formUnsupported, ///< the processor does not have the instruction
    formSimulated,   ///< there is no word for the instruction, but the simulator executes it
    formTwoOperand,  ///< register and number, or two registers
    formPort,        ///< register and port number, or register and register in parentheses; or number and constant port
    formScrpd,       ///< register and scratchpad address, or register and register in parentheses
    formFlow,        ///< label, or flag and label; or two registers in parentheses
    formReturn,      ///< nothing, or a flag
    formSwitch,      ///< DISABLE or ENABLE
    formNone,        ///< no argument
    formReg,         ///< one register
    formRegNumber,   ///< register and number
    formRotate,      ///< one register, or two of them
    formFlag,        ///< C or Z
    formBank,        ///< a register bank
};

// Places in sInstr_t::words, by form. The others have one word, in the first place.

/// formTwoOperand, formPort, formScrpd. A word of 0 says that there is no constant port.
enum eWordOperand_t { wordNumber = 0, wordRegister = 1, wordConstant = 2 };
/// formFlow, formReturn. A word of 0 says that there is no computed target.
enum eWordFlow_t { wordAlways = 0, wordZ = 1, wordNZ = 2, wordC = 3, wordNC = 4, wordComputed = 5 };
/// formSwitch
enum eWordSwitch_t { wordDisable = 0, wordEnable = 1 };
/// formFlag
enum eWordFlag_t { wordFlagC = 0, wordFlagZ = 1 };

/// One row of a processor's instruction set: the instruction's form and its machine words without operands.
struct sInstr_t
{
    nsModAsmFe::eOpcode_t opcode;
    eInstrForm_t form;
    int words[6];
};

/// How a processor's words are laid out, and its limits.
struct sInstrLayout_t
{
    int dstShift = 0;          ///< place of the first register
    int srcShift = 0;          ///< place of the second register
    int regBits = 0;           ///< width of a register
    int addrShift = 0;         ///< place of a port number or scratchpad address
    int portBits = 0;          ///< width of a port number; higher bits of it lie over the first register
    int scrpdBits = 0;         ///< width of a scratchpad address; likewise
    int maxNumber = 0;         ///< largest immediate, which stands in the lowest bits
    int maxPort = 0;           ///< largest port number
    int flowBits = 0;          ///< width of an address in a jump; higher bits of it are not encoded
    bool relativeFlow = false; ///< jumps hold the distance to their target
    bool portIsNumber = false; ///< a port number that is too large is reported as a number that is too large
    int constantShift = 4;     ///< place of the number in a write of a constant; its port stands in the lowest bits
    int maxConstantPort = 15;  ///< largest port of such a write
};

/// Width of a machine word.
const int instrWordBits = 18;

} // namespace nsProc
