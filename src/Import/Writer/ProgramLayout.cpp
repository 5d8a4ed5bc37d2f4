#include "ProgramLayout.h"

#include "ForeignNumbers.h"

#include <QFileInfo>

#include <algorithm>

namespace nsImport {

ProgramLayout::ProgramLayout(ForeignProgram& program, ImportMessages& messages)
    : m_program(program)
    , m_messages(messages)
{
}

void ProgramLayout::report(eImportMsg_t type, const QStringList& arguments, int statement)
{
    const ForeignStatement& place = m_program.statements.at(statement);
    m_messages.add(type, arguments, m_program.files.at(place.file).path, place.line);
}

void ProgramLayout::arrange(int memorySize)
{
    m_inPlace.fill(true, m_program.symbols.size());
    m_placesCode.fill(false, m_program.statements.size());
    findBlocks();
    markOccupied();
    findLooseLabels();
    sortBlocks();
    attachDefinitions();
    addFillers(memorySize);
    makeSources();
}

void ProgramLayout::findBlocks()
{
    const QVector<ForeignStatement>& statements = m_program.statements;
    Block block;
    const auto close = [&](int end) {
        block.last = end;
        if (block.last > block.first) {
            measure(&block);
            m_blocks.append(block);
        }
        block = Block();
        block.first = end;
    };
    for (int i = 0; i < statements.size(); ++i) {
        const ForeignStatement& statement = statements.at(i);
        if (i > block.first && statement.file != statements.at(i - 1).file)
            close(i);
        if (statement.op() == opAddress && statement.hasWord()) {
            // What is said about the code behind the address goes with it.
            int begin = i;
            while (begin > block.first && statements.at(begin - 1).isEmpty())
                --begin;
            if (begin > block.first)
                close(begin);
            block.isPlaced = true;
        }
        block.file = statement.file;
    }
    close(statements.size());
}

/// Finds the addresses of a block, and which of its labels stand at an instruction of it.
void ProgramLayout::measure(Block* block)
{
    int next = -1;
    int placing = -1;
    for (int i = block->last - 1; i >= block->first; --i) {
        const ForeignStatement& statement = m_program.statements.at(i);
        if (statement.size > 0) {
            next = statement.address;
            block->end = block->hasCode ? block->end : statement.address + statement.size;
            block->start = statement.address;
            block->hasCode = true;
        }
        for (int label = 0; statement.firstLabel >= 0 && label < statement.labels.size(); ++label) {
            const int symbol = statement.firstLabel + label;
            m_inPlace[symbol] = next >= 0 && m_program.symbols.at(symbol).value == next;
        }
        if (statement.op() == opAddress && statement.hasWord() && !statement.isBroken)
            placing = i;
    }
    if (placing >= 0 && block->hasCode)
        m_placesCode[placing] = true;
}

void ProgramLayout::markOccupied()
{
    m_occupied.fill(-1, m_program.dialect->maxAddress + 1);
    for (int i = 0; i < m_program.statements.size(); ++i) {
        ForeignStatement& statement = m_program.statements[i];
        for (int word = 0; word < statement.size; ++word) {
            int& taken = m_occupied[statement.address + word];
            if (taken >= 0 && taken != i) {
                const ForeignStatement& other = m_program.statements.at(taken);
                report(errImpAddressTwice,
                       {hexNumber(statement.address + word), QString::number(other.line),
                        QFileInfo(m_program.files.at(other.file).path).fileName()},
                       i);
                statement.isBroken = true;
                break;
            }
            taken = i;
            m_size = qMax(m_size, statement.address + word + 1);
        }
    }
}

void ProgramLayout::findLooseLabels()
{
    for (auto target = m_program.targets.cbegin(); target != m_program.targets.cend(); ++target)
        m_looseLabels[target.key()].append(target.value());
    for (int i = 0; i < m_program.symbols.size(); ++i) {
        const ForeignSymbol& symbol = m_program.symbols.at(i);
        if (symbol.kind != ForeignSymbol::eLabel || m_inPlace.at(i))
            continue;
        const bool isInMemory = symbol.value >= 0 && symbol.value < m_occupied.size();
        // A label that nothing uses need not stand anywhere.
        if (isInMemory && (symbol.isUsed || m_occupied.at(symbol.value) >= 0))
            m_looseLabels[symbol.value].append(symbol.ours);
    }
}

void ProgramLayout::sortBlocks()
{
    int order = 0;
    int end = 0;
    QVector<Block> code;
    for (Block& block : m_blocks) {
        block.order = order++;
        if (!block.hasCode)
            continue;
        if (block.start < end)
            report(infoImpReordered, {hexNumber(block.start)}, block.first);
        end = qMax(end, block.end);
        code.append(block);
    }
    std::stable_sort(code.begin(), code.end(), [](const Block& a, const Block& b) { return a.start < b.start; });
    QVector<Block> others;
    for (const Block& block : qAsConst(m_blocks)) {
        if (!block.hasCode)
            others.append(block);
    }
    m_blocks = code;
    m_standAlone = others;
}

/// Definitions and comments go with the code of their file that follows them, or with the last one.
void ProgramLayout::attachDefinitions()
{
    m_definitions.resize(m_blocks.size());
    m_remainders.resize(m_blocks.size());
    QHash<int, QMap<int, int>> codeOf; // by file: blocks with code by their order in the program
    for (int i = 0; i < m_blocks.size(); ++i)
        codeOf[m_blocks.at(i).file].insert(m_blocks.at(i).order, i);
    QVector<Block> alone;
    for (const Block& block : qAsConst(m_standAlone)) {
        const auto code = codeOf.constFind(block.file);
        if (code == codeOf.constEnd()) {
            alone.append(block);
            continue;
        }
        const auto next = code.value().lowerBound(block.order);
        if (next != code.value().cend())
            m_definitions[next.value()].append(block);
        else
            m_remainders[code.value().last()].append(block);
    }
    m_standAlone = alone;
}

void ProgramLayout::addFillers(int memorySize)
{
    const bool fillsAll = m_program.defaultJump >= 0;
    while (memorySize < m_size)
        memorySize *= 2;
    for (int address = 0; address < m_occupied.size(); ++address) {
        if (m_occupied.at(address) >= 0)
            continue;
        const bool isWanted =
            m_looseLabels.contains(address) || (fillsAll && address < memorySize) || (address == 0 && m_size > 0);
        if (!isWanted)
            continue;
        m_fillers.append(address);
        m_size = qMax(m_size, address + 1);
        if (fillsAll)
            continue;
        if (address == 0)
            m_messages.add(infoImpStartFilled, {});
        if (m_looseLabels.contains(address))
            m_messages.add(infoImpTargetMade, {m_looseLabels.value(address).first(), hexNumber(address)});
    }
    if (fillsAll)
        report(infoImpUnusedFilled, {QString::number(m_fillers.size()), m_program.defaultTarget},
               m_program.defaultJump);
}

LayoutSource& ProgramLayout::sourceFor(int file)
{
    if (m_sources.isEmpty() || m_sources.last().file != file) {
        LayoutSource source;
        source.file = file;
        source.part = ++m_parts[file];
        m_sources.append(source);
    }
    return m_sources.last();
}

void ProgramLayout::makeSources()
{
    int expected = 0;
    for (const Block& block : qAsConst(m_standAlone))
        addBlock(block, &expected);
    for (int i = 0; i < m_blocks.size(); ++i) {
        for (const Block& block : qAsConst(m_definitions.at(i)))
            addBlock(block, &expected);
        const Block& code = m_blocks.at(i);
        sourceFor(code.file);
        addFillersUpTo(code.start, &expected);
        addBlock(code, &expected);
        for (const Block& block : qAsConst(m_remainders.at(i)))
            addBlock(block, &expected);
    }
    if (m_sources.isEmpty())
        sourceFor(0);
    addFillersUpTo(m_occupied.size(), &expected);
}

void ProgramLayout::addBlock(const Block& block, int* expected)
{
    LayoutSource& source = sourceFor(block.file);
    bool isPlaced = block.hasCode && block.start == *expected;
    for (int i = block.first; i < block.last; ++i) {
        const ForeignStatement& statement = m_program.statements.at(i);
        // Labels are put where the code is, so that the address comes before them.
        const bool isCode = statement.size > 0 || !statement.labels.isEmpty();
        if (m_placesCode.at(i))
            isPlaced = true;
        if (block.hasCode && isCode && !isPlaced) {
            source.items.append({LayoutItem::eAddress, -1, block.start});
            isPlaced = true;
        }
        source.items.append({LayoutItem::eStatement, i, statement.address});
    }
    if (block.hasCode)
        *expected = block.end;
}

void ProgramLayout::addFillersUpTo(int address, int* expected)
{
    LayoutSource& source = m_sources.last();
    while (m_nextFiller < m_fillers.size() && m_fillers.at(m_nextFiller) < address) {
        const int filler = m_fillers.at(m_nextFiller++);
        if (filler != *expected)
            source.items.append({LayoutItem::eAddress, -1, filler});
        source.items.append({LayoutItem::eFiller, -1, filler});
        *expected = filler + 1;
    }
}

} // namespace nsImport
