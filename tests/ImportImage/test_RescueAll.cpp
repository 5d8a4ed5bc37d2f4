#include "Assembly.h"
#include "ImageText.h"
#include "ProcDisassembler.h"
#include "ProcTable.h"
#include "ProcTables.h"
#include "QtPrinters.h"
#include "Rescue.h"

#include <gtest/gtest.h>

#include <random>

using namespace nsImport;
using nsProc::ProcDisassembler;

namespace {

const int wordCount = 1 << 18;

/// Each processor, and how many words its sources can have: counted by hand from its instruction set.
struct sCore_t
{
    const nsProc::ProcTable& (*table)();
    int instructions;
};

class RescueAll : public ::testing::TestWithParam<sCore_t>
{
protected:
    const nsProc::ProcTable& table() const { return GetParam().table(); }

    /// Rescues the image, assembles the result with other code than the rescue does, and compares.
    /// @return number of words that are reported as no instruction
    int check(const ProgramImage& image)
    {
        RescueOptions options;
        options.invalid = RescueOptions::eInvalidReplaced;
        const RescueResult result = Rescue(table(), options).run(image);
        EXPECT_TRUE(result.ok) << qPrintable(result.error);
        QVector<bool> isInvalid(image.size(), false);
        for (const RescueInvalidWord& word : result.invalid) {
            EXPECT_EQ(word.word, image.word(word.address));
            EXPECT_FALSE(word.reason.isEmpty());
            isInvalid[word.address] = true;
        }
        Assembly assembly(table());
        assembly.settings = result.settings;
        const AssemblyResult again = assembly.run({{"a.psm", result.source}});
        EXPECT_TRUE(again.ok) << qPrintable(again.firstError());
        for (int address = 0; address < std::max(image.size(), again.image.size()); ++address) {
            const bool invalid = address < isInvalid.size() && isInvalid.at(address);
            if (again.image.word(address) != (invalid ? 0 : image.word(address))) {
                ADD_FAILURE() << "address " << address << ": " << std::hex << again.image.word(address) << " for "
                              << image.word(address);
                break;
            }
        }
        return result.invalid.size();
    }
};

} // namespace

TEST_P(RescueAll, everyWordComesBackOrIsReported)
{
    const int size = 4096;
    int invalid = 0;
    for (int first = 0; first < wordCount; first += size) {
        ProgramImage image;
        // A distance leads into the memory from one half of it: forwards from the lower one, backwards from the upper
        // one.
        for (int i = 0; i < size; ++i)
            image.setWord(i, quint32(first + i));
        invalid += check(image);
    }
    EXPECT_EQ(wordCount - invalid, GetParam().instructions);
}

TEST_P(RescueAll, randomImagesOfValidWords)
{
    const ProcDisassembler disassembler(table());
    const QVector<ProcDisassembler::sPattern_t>& patterns = disassembler.patterns();
    std::mt19937 random(20160901);
    const auto below = [&random](int limit) { return int(random() % uint(limit)); };
    for (int round = 0; round < 1000; ++round) {
        ProgramImage image;
        const int size = 1 + below(200);
        const int gap = below(3) == 0 ? below(50) : 0;
        for (int i = 0; i < size; ++i) {
            const int address = i < size / 2 ? i : i + gap;
            const ProcDisassembler::sPattern_t& pattern = patterns.at(below(patterns.size()));
            int word = pattern.match | (below(wordCount) & ~pattern.mask);
            for (const ProcDisassembler::sOperand_t& operand : pattern.operands) {
                // A target is an address that the processor can have.
                while (operand.kind == ProcDisassembler::sOperand_t::target &&
                       disassembler.targetAddress(operand, word, address) < 0)
                    word = pattern.match | (below(wordCount) & ~pattern.mask);
            }
            image.setWord(address, quint32(word), i + 1);
        }
        ASSERT_EQ(check(image), 0) << "round " << round;
        if (HasFailure())
            break;
    }
}

INSTANTIATE_TEST_SUITE_P(Cores, RescueAll,
                         ::testing::Values(sCore_t{&nsProc::xpBlze3Table, 65193},
                                           sCore_t{&nsProc::xpBlze6Table, 123835},
                                           sCore_t{&nsProc::lMico8v3xTable, 145416}),
                         [](const ::testing::TestParamInfo<sCore_t>& core) {
                             return std::string(core.param.table().cfgSection);
                         });
