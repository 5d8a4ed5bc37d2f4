#include "Rescue.h"

#include "Assembly.h"
#include "ProcDisassembler.h"
#include "ProcTable.h"
#include "RescueFlow.h"
#include "RescueWriter.h"

#include <algorithm>

namespace nsImport {

namespace {

const int usualPageSize = 1024;

bool isPowerOfTwo(int value)
{
    return value > 0 && (value & (value - 1)) == 0;
}

int nextPowerOfTwo(int value)
{
    int power = 1;
    while (power < value)
        power *= 2;
    return power;
}

/// Words of the memory that the image comes from, as far as it tells.
int memorySize(const ProgramImage& image)
{
    if (image.depth > 0)
        return std::max(image.depth, image.size());
    const bool isWhole = image.count() == image.size() && isPowerOfTwo(image.size());
    return isWhole ? image.size() : std::max(usualPageSize, nextPowerOfTwo(image.size()));
}

QString addressList(const QVector<int>& addresses)
{
    const int most = 16;
    QStringList texts;
    for (int address : addresses.mid(0, most))
        texts.append(QString::number(address, 16).toUpper().rightJustified(3, '0'));
    if (addresses.size() > most)
        texts.append(QStringLiteral("... (%1 in all)").arg(addresses.size()));
    return texts.join(QLatin1String(", "));
}

/// The smallest scratchpad that has the address.
int scratchpadSize(const nsProc::ProcTable& table, int maxAddress)
{
    const nsProc::sProcSetting_t* setting = table.setting(nsProc::settingScrpdSize);
    int size = table.scrpdSize;
    if (setting == nullptr)
        return size;
    for (int choice : setting->choices) {
        if (size <= maxAddress)
            size = std::max(size, choice);
    }
    return size;
}

} // namespace

Rescue::Rescue(const nsProc::ProcTable& table, const RescueOptions& options)
    : m_table(table)
    , m_options(options)
{
}

RescueResult Rescue::run(const ProgramImage& image) const
{
    RescueResult result;
    result.settings = m_table.defaultConfig();
    if (image.isEmpty()) {
        result.error = QStringLiteral("The image has no word.");
        return result;
    }
    if (m_options.intVectorAddr >= 0 && m_table.setting(nsProc::settingIntVectorAddr) != nullptr)
        result.settings.intVectorAddr = m_options.intVectorAddr;
    // Where the vector is the start, it needs no name of its own.
    const int vector = m_table.everyPageHasIntVector ? -1 : result.settings.intVectorAddr;
    const nsProc::ProcDisassembler disassembler(m_table);
    RescueFlow flow(m_table, disassembler, image);
    flow.walk(vector);
    RescueWriter writer(m_table, disassembler, image, flow, vector);

    result.settings.pageSize = std::max(memorySize(image), vector + 1);
    if (writer.end() > result.settings.pageSize)
        result.settings.pageSize = nextPowerOfTwo(writer.end());
    result.settings.scrpdSize = scratchpadSize(m_table, writer.scratchpadMax());
    result.filledCount = writer.filledCount();
    result.wordCount = image.count() - result.filledCount;
    result.addedCount = writer.added().size();
    addFindings(m_table, image, flow, &result);
    if (result.addedCount > 0)
        result.notes.append(
            QStringLiteral("Instructions with the word 0 were added at addresses that something leads to and that "
                           "have no word in the image: %1.")
                .arg(addressList(writer.added())));
    result.source = writer.source(m_options.name, m_options.invalid == RescueOptions::eInvalidMarked);
    const QByteArray checked = result.invalid.isEmpty() ? result.source : writer.source(m_options.name, false);
    result.ok = check(image, flow, checked, result.settings, &result.error);
    return result;
}

void Rescue::addFindings(const nsProc::ProcTable& table, const ProgramImage& image, const RescueFlow& flow,
                         RescueResult* result)
{
    const int reach = 1 << table.layout.flowBits;
    int beyond = 0;
    int unreached = 0;
    for (int address = 0; address < image.size(); ++address) {
        if (!image.contains(address))
            continue;
        const RescueWord& word = flow.word(address);
        if (word.pattern == nullptr)
            result->invalid.append(
                {address, image.word(address), word.reason, word.reachable || flow.hasComputedTargets()});
        unreached += word.reachable ? 0 : 1;
        beyond += address >= reach ? 1 : 0;
    }
    if (beyond > 0)
        result->notes.append(
            QStringLiteral("Number of words beyond address %1, the last one that the processor reaches: %2.")
                .arg(addressList({reach - 1}))
                .arg(beyond));
    if (flow.hasComputedTargets())
        result->notes.append(
            QStringLiteral("Jumps or calls take their target from registers: everything may be reached, and no code "
                           "may be moved."));
    unreached -= result->filledCount;
    if (unreached > 0)
        result->notes.append(
            QStringLiteral("Number of words that are not reached from the start or the interrupt vector: %1.")
                .arg(unreached));
    if (result->filledCount > 0)
        result->notes.append(
            QStringLiteral("Number of zeros that nothing reaches, and that were left out as unused memory is zero: %1.")
                .arg(result->filledCount));
}

/// Assembles the source and compares the memory, in which unused addresses are zero.
bool Rescue::check(const ProgramImage& image, const RescueFlow& flow, const QByteArray& source,
                   const nsProc::ProcCoreConfig& settings, QString* error) const
{
    Assembly assembly(m_table);
    assembly.settings = settings;
    const AssemblyResult assembled = assembly.run({{QStringLiteral("rescued.psm"), source}});
    if (!assembled.ok) {
        *error = QStringLiteral("The sources do not assemble: %1").arg(assembled.firstError());
        return false;
    }
    const int end = std::max(image.size(), assembled.image.size());
    for (int address = 0; address < end; ++address) {
        const bool isInvalid = image.contains(address) && flow.word(address).pattern == nullptr;
        const quint32 expected = isInvalid ? 0 : image.word(address);
        if (assembled.image.word(address) == expected)
            continue;
        *error = QStringLiteral("The sources do not give the image again: address %1 has %2 in place of %3.")
                     .arg(addressList({address}), QString::number(assembled.image.word(address), 16),
                          QString::number(expected, 16));
        return false;
    }
    return true;
}

} // namespace nsImport
