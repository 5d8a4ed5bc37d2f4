#pragma once

#include <QString>

namespace nsModAsmFe {

/// The kinds of output files, in the order in which they are written.
enum eTargetKind_t {
    kindVhdl,
    kindVerilog,
    kindHex,
    kindMem,
    kindMif,      ///< memory initialization file: width, depth, a line a word
    kindCoe,      ///< coefficients: a list of words in radix 16
    kindBinary,   ///< bytes alone
    kindIntelHex, ///< records with address and check sum
    kindRamMem,   ///< words with byte addresses in hexadecimal, whole or in two halves
    targetKindCount
};

/// How the words of a binary file, or the data of an Intel HEX record, become bytes.
enum eByteLayout_t {
    layoutLittle, ///< the lowest byte first
    layoutBig,    ///< the highest byte first
    layoutWords,  ///< Intel HEX alone: a record a word, its address counts words, the highest byte first
};

/// How the words of a block RAM lie in a file with addresses.
enum eRamLayout_t {
    layoutHalves, ///< a range with the low halves of all words, then one with the high halves
    layoutWhole,  ///< one range of whole words
};

/// What an output file of any kind needs beside the contents. A field that a kind does not have is not used.
struct TargetFile
{
    bool en = false;
    QString entityName;          ///< of kinds with a template
    QString templateFile;        ///< absolute; of kinds with a template
    QString outputFile;          ///< absolute
    bool outputBySource = false; ///< a source names the output, not the settings
    bool gapStuffingEn = true;   ///< words that nothing wrote are written too; of kinds that can leave them out
    int wordWidth = 18;          ///< bits of a word, 1 to 32; of kinds that are images
    int layout = 0;              ///< index in the layouts of the kind, if it has any

    static constexpr int maxWordWidth = 32;
};

} // namespace nsModAsmFe
