#pragma once

namespace nsModAsmFe {

/// Bounds of what the assembler takes, so that a typing error can not use up the memory of the machine.
struct AsmLimits
{
    /// Largest instruction memory and largest IO devices together, in words. Larger ones are refused.
    static const int maxMemWords = 1 << 24;
    /// Longest source line in characters; what exceeds it is reported and skipped.
    static const int maxLineLength = 1 << 24;
    /// Longest namespace in characters, including those around it: each element in it stores the complete name.
    static const int maxNameSpaceLength = 1 << 15;
    /// Most pages of the instruction memory.
    static const int maxPageCount = 1024;
};

} // namespace nsModAsmFe
