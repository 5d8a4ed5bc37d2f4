#include "AsmWords.h"

#include "AsmBackend.h"

namespace nsModAsmFe {

AsmWords::AsmWords()
    : m_argumentWords({"ENABLE", "DISABLE", "C", "NC", "Z", "NZ"})
    , m_instructionWordSet(instructionWords().cbegin(), instructionWords().cend())
    , m_argumentWordSet(m_argumentWords.cbegin(), m_argumentWords.cend())
{
}

void AsmWords::setProcessor(AsmBackend* backend)
{
    const auto names = [](const QHash<QString, int>* table) {
        return table != nullptr ? *table : QHash<QString, int>();
    };
    m_regTable = names(backend != nullptr ? backend->regNames() : nullptr);
    m_bankTable = names(backend != nullptr ? backend->regBankNames() : nullptr);
}

} // namespace nsModAsmFe
