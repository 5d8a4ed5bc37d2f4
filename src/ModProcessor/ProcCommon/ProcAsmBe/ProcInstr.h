#pragma once

#include "eOpcode.h"

namespace nsProc {

/// The forms that an instruction can have, with the order of the checks of its arguments.
enum eInstrForm_t {
    formTwoOperand, ///< register and number, or two registers
    formPort,       ///< register and port number, or register and register in parentheses
    formScrpd,      ///< register and scratchpad address, or register and register in parentheses
    formFlow,       ///< label, or flag and label
    formReturn,     ///< nothing, or a flag
    formSwitch,     ///< DISABLE or ENABLE
    formNone,       ///< no argument
    formReg,        ///< one register
};

// Places in sInstr_t::words, by form.
enum eWordOperand_t { wordNumber = 0, wordRegister = 1 };                                    // formTwoOperand, Port, Scrpd
enum eWordFlow_t { wordAlways = 0, wordZ = 1, wordNZ = 2, wordC = 3, wordNC = 4 };           // formFlow, formReturn
enum eWordSwitch_t { wordDisable = 0, wordEnable = 1 };                                      // formSwitch

/// One row of a processor's instruction set: the instruction's form and its machine words without operands.
struct sInstr_t
{
    nsModAsmFe::eOpcode_t opcode;
    eInstrForm_t form;
    int words[5];
};

/// How a processor's words are laid out, and its limits.
struct sInstrLayout_t
{
    int dstShift;  ///< place of the first register
    int srcShift;  ///< place of the second register
    int maxNumber; ///< largest immediate
    int maxPort;   ///< largest port number
};

} // namespace nsProc
