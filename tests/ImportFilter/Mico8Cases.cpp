// The forms of the languages for the Mico8.

#include "DialectCase.h"

namespace {

const char* const vendor = "Mico8 (vendor's assembler)";
const char* const gnu = "Mico8 (GNU assembler)";

const char* const unknownArgument = "errUnsupportedArgument";
const char* const unknownWord = "errOcUnsupported";

/// What both assemblers have.
QList<DialectCase> commonCases(const char* name)
{
    return {
        // Numbers
        {name,
         "movi r1, 0x1F\nmovi r1, 12\nmovi r1, 017\nmovi r1, 0b101\nmovi r1, 'A'\nmovi r1, 0",
         "LOAD r1, 0x1F\nLOAD r1, 12\nLOAD r1, \\017\nLOAD r1, b101\nLOAD r1, \"A\"'ASCII\nLOAD r1, 0",
         {0x1211f, 0x1210c, 0x1210f, 0x12105, 0x12141, 0x12100},
         nullptr},
        {name,
         "movi R03, #0x10\nmovi r3, #017\nmovi r3, #5\nmovi r3, #'A'",
         "LOAD r3, 0x10\nLOAD r3, \\017\nLOAD r3, 5\nLOAD r3, \"A\"'ASCII",
         {0x12310, 0x1230f, 0x12305, 0x12341},
         nullptr},
        {name, "movi r1, 09", "LOAD r1, ? ;09", {}, unknownArgument},
        {name, "movi r1, ';' ; x", "LOAD r1, ? ;';' ; x", {}, unknownArgument},
        {name, "movi r1, ','", "movi r1, ','", {}, "stop"},
        {name, "movi r1, ' '", "movi r1, ' '", {}, "stop"},
        {name, "movi r1, 1+2", "LOAD r1, 1+2", {0x12103}, nullptr},
        {name, "movi r1, 010+1", "LOAD r1, ? ;010+1", {}, unknownArgument},
        {name, "movi r1, 1|2^2", "LOAD r1, ? ;1|2^2", {}, unknownArgument},
        // Registers
        {name, "mov R31, r07", "LOAD r31, r7", {0x11f38}, nullptr},
        {name, "mov r32, r1", "LOAD r32, r1", {}, unknownArgument},
        // Two registers, register and value
        {name,
         "add r1, r2\naddc r1, r2\nsub r1, r2\nsubc r1, r2\nand r1, r2\nor r1, r2\nxor r1, r2",
         "add r1, r2\naddc r1, r2\nsub r1, r2\nsubc r1, r2\nand r1, r2\nor r1, r2\nxor r1, r2",
         {0x08110, 0x0c110, 0x00110, 0x04110, 0x14110, 0x18110, 0x1c110},
         nullptr},
        {name,
         "cmp r1, r2\ntest r1, r2\nmov r1, r2",
         "COMP r1, r2\ntest r1, r2\nLOAD r1, r2",
         {0x20110, 0x24110, 0x10110},
         nullptr},
        {name,
         "addi r1, 2\naddic r1, 2\nsubi r1, 2\nsubic r1, 2\nandi r1, 2\nori r1, 2\nxori r1, 2",
         "ADD r1, 2\nADDC r1, 2\nSUB r1, 2\nSUBC r1, 2\nAND r1, 2\nOR r1, 2\nXOR r1, 2",
         {0x0a102, 0x0e102, 0x02102, 0x06102, 0x16102, 0x1a102, 0x1e102},
         nullptr},
        {name,
         "cmpi r1, 2\ntesti r1, 2\nmovi r1, 2",
         "COMP r1, 2\nTEST r1, 2\nLOAD r1, 2",
         {0x22102, 0x26102, 0x12102},
         nullptr},
        {name, "inc r1\ndec R02 ; x", "ADD r1, 1\nSUB r2, 1 ; x", {0x0a101, 0x02201}, nullptr},
        {name,
         "ror r1\nrol r1, r2\nrorc r1\nrolc r1, r2",
         "ror r1\nrol r1, r2\nrorc r1\nrolc r1, r2",
         {0x28108, 0x28111, 0x2810a, 0x28113},
         nullptr},
        {name,
         "clrc\nsetc\nclrz\nsetz\nclri\nseti ; x",
         "CLR     C\nSET     C\nCLR     Z\nSET     Z\nINT     DISABLE\nINT     ENABLE ; x",
         {0x2c000, 0x2c001, 0x2c002, 0x2c003, 0x2c004, 0x2c005},
         nullptr},
        // Flow; "here" is at address 0, the first of these at 1
        {name,
         "b here\nbz here\nbnz here\nbc here\nbnc here",
         "JUMP here\nJUMP    Z, here\nJUMP    NZ, here\nJUMP    C, here\nJUMP    NC, here",
         {0x3bfff, 0x30ffe, 0x31ffd, 0x32ffc, 0x33ffb},
         nullptr},
        {name,
         "call here\ncallz here\ncallnz here\ncallc here\ncallnc here",
         "call here\nCALL    Z, here\nCALL    NZ, here\nCALL    C, here\nCALL    NC, here",
         {0x38fff, 0x34ffe, 0x35ffd, 0x36ffc, 0x37ffb},
         nullptr},
        {name, "b $+2", "JUMP ? ;$+2", {}, unknownArgument},
        {name, "bz $-1", "JUMP    Z, ? ;$-1", {}, unknownArgument},
        {name, "b 16", "JUMP 16", {}, unknownArgument},
        {name, "ret\niret\nnop", "ret\nRETI\nnop", {0x39000, 0x3a000, 0x10000}, nullptr},
        // Ports and scratchpad
        {name,
         "export r1, 5\nexporti r1, r2\nimport r1, 5\nimporti r1, R02",
         "WRPRT r1, 5\nWRPRT r1, (r2)\nRDPRT r1, 5\nRDPRT r1, (r2)",
         {0x2e128, 0x2e112, 0x2e129, 0x2e113},
         nullptr},
        {name,
         "outp r1, 5\noutpi r1, r2\ninp r1, 5\ninpi r1, r2",
         "WRPRT r1, 5\nWRPRT r1, (r2)\nRDPRT r1, 5\nRDPRT r1, (r2)",
         {0x2e128, 0x2e112, 0x2e129, 0x2e113},
         nullptr},
        {name,
         "ssp r1, 5\nsspi r1, r2\nlsp r1, 5\nlspi r1, (r2)",
         "WRMEM r1, 5\nWRMEM r1, (r2)\nRDMEM r1, 5\nRDMEM r1, (r2)",
         {0x2e12c, 0x2e116, 0x2e12d, 0x2e117},
         nullptr},
        // Directives
        {name, ".equ name, 017\nexport R03, #name", "#EQU name, \\017\nWRPRT r3, name", {0x2e378}, nullptr},
        {name, ".org 0x10\nnop", "#ORG    ADDR, 0x10\nnop", {0x10000}, nullptr},
        {name, ".org 020\nJUMP here", "#ORG    ADDR, \\020\nJUMP here", {0x3bff0}, nullptr},
        // Bytes
        {name,
         ".equ name, 0x1234\nmovi r1, _lo(name)\nmovi r1, _hi(name)\nmovi r1, _lo(010)",
         "#EQU name, 0x1234\nLOAD r1, name[7:0]\nLOAD r1, name[15:8]\nLOAD r1, \\010[7:0]",
         {0x12134, 0x12112, 0x12108},
         nullptr},
        {name,
         "movi r1, _lo(far)\nmovi r2, _hi(far)\n.org 0x2A5\nfar: nop",
         "LOAD r1, far[7:0]\nLOAD r2, far[15:8]\n#ORG    ADDR, 0x2A5\nfar: nop",
         {0x121a5, 0x12202, 0x10000},
         nullptr},
        {name, "movi r1, _lo(a+1)", "LOAD r1, ? ;_lo(a+1)", {}, unknownArgument},
        // Comments
        {name, "#EQU here2, 5", ";#EQU here2, 5", {}, nullptr},
        {name, "# text", ";# text", {}, nullptr},
        {name, "#-----", ";#-----", {}, nullptr},
        {name, "// text", ";// text", {}, nullptr},
        {name, "ret // text", "ret ;// text", {0x39000}, nullptr},
        {name, "# more words than fit", "# more words than fit", {}, "stop"},
        {name, "/* more words than fit */", "/* more words than fit */", {}, "stop"},
        {name, "/* text */", ";/* text */", {}, nullptr},
        {name, "/* open", "? ;/* open", {}, unknownWord},
        {name, "nop ; # /* x */ 'a' 017", "nop ; # /* x */ 'a' 017", {0x10000}, nullptr},
        // Names
        {name, "load: nop", "load: nop", {}, "errLblIsOpcode"},
        {name, ".byte 5", ".byte 5", {}, unknownWord},
    };
}

} // namespace

QList<DialectCase> mico8Cases()
{
    return commonCases(vendor) + commonCases(gnu) +
           QList<DialectCase>{
               {vendor, "name equ 5\nmovi r1, #name", "#EQU name, 5\nLOAD r1, name", {0x12105}, nullptr},
               {vendor, "name reg R01\nmovi name, 6", "#EQU name, r1\nLOAD name, 6", {0x12106}, nullptr},
               {gnu, ".set name, 5\nmovi r1, name", "#EQU name, 5\nLOAD r1, name", {0x12105}, nullptr},
               {gnu, "1: b 1b", "1: JUMP 1b", {}, "errLblIsNumeric"},
               {gnu, "bz 1f", "JUMP    Z, 1f", {}, unknownArgument},
               {gnu, ".text", ";.text", {}, nullptr},
               {gnu, ".global main", ";.global main", {}, nullptr},
               {gnu, ".type main, @function", ";.type main, @function", {}, nullptr},
               {gnu, ".size main, .-main", ";.size main, .-main", {}, nullptr},
               {gnu, ".section .text", ";.section .text", {}, nullptr},
               {gnu, ".data", ".data", {}, unknownWord},
           };
}
