#include "ProcSimCoreData.h"

#include <algorithm>

namespace nsProc {

namespace {

const int scrpdAtOnce = 4096; ///< cells that are there before they are written

/// Assigns a text unless it shares its data with the present one.
void take(QString* target, const QString& text)
{
    if (target->constData() != text.constData())
        *target = text;
}

} // namespace

ProcSimCoreData::ProcSimCoreData(int regCount, int bankCount, int scrpdSize)
    : m_regCount(std::max(regCount, 0))
    , m_bankCount(bankCount > 1 ? 2 : 1)
    , m_scrpdSize(std::max(scrpdSize, 0))
    , m_values(size_t(m_regCount * m_bankCount))
    , m_marks(m_values.size())
    , m_scrpd(size_t(std::min(m_scrpdSize, scrpdAtOnce)))
{
}

bool ProcSimCoreData::setReg(int index, const QString& alias, int value)
{
    if (index < 0 || index >= m_regCount)
        return false;
    m_values[cell(m_bank, index)] = quint8(value);
    sMark_t& target = mark(m_bank, index);
    take(&target.alias, alias);
    target.step = m_step;
    return true;
}

bool ProcSimCoreData::reg(int index, const QString& alias, int* value)
{
    if (index < 0 || index >= m_regCount)
        return false;
    take(&mark(m_bank, index).alias, alias);
    *value = m_values[cell(m_bank, index)];
    return true;
}

void ProcSimCoreData::noteAlias(int index, const QString& alias)
{
    take(&mark(m_bank, index).alias, alias);
}

void ProcSimCoreData::setCarryBit(int value)
{
    m_contentChanged = m_contentChanged || m_carry != int(value != 0);
    m_carry = value != 0;
    m_carryStep = m_step;
}

void ProcSimCoreData::setZeroBit(int value)
{
    m_contentChanged = m_contentChanged || m_zero != int(value != 0);
    m_zero = value != 0;
    m_zeroStep = m_step;
}

bool ProcSimCoreData::initScrpd(const unsigned int* values, int count)
{
    if (count > m_scrpdSize)
        return false;
    for (int addr = 0; addr < count; ++addr)
        storeScrpd(addr, int(values[addr]));
    return true;
}

void ProcSimCoreData::storeScrpd(int addr, int value)
{
    if (size_t(addr) >= m_scrpd.size())
        m_scrpd.resize(size_t(addr) + 1);
    m_scrpd[size_t(addr)] = quint8(value);
}

bool ProcSimCoreData::setScrpd(int addr, int value)
{
    if (addr < 0 || addr >= m_scrpdSize)
        return false;
    storeScrpd(addr, value);
    m_scrpdAddr = addr;
    m_scrpdStep = m_step;
    return true;
}

bool ProcSimCoreData::scrpd(int addr, int* value) const
{
    if (addr < 0 || addr >= m_scrpdSize)
        return false;
    *value = size_t(addr) < m_scrpd.size() ? m_scrpd[size_t(addr)] : 0;
    return true;
}

void ProcSimCoreData::editScrpd(int addr, int value)
{
    if (addr >= 0 && addr < m_scrpdSize)
        storeScrpd(addr, value);
}

void ProcSimCoreData::clearScrpd()
{
    std::fill(m_scrpd.begin(), m_scrpd.end(), quint8(0));
}

void ProcSimCoreData::setPc(int addr, const QString& pageName)
{
    m_pc = addr;
    take(&m_pageName, pageName);
}

void ProcSimCoreData::clear()
{
    std::fill(m_values.begin(), m_values.end(), quint8(0));
    std::fill(m_marks.begin(), m_marks.end(), sMark_t());
    clearScrpd();
    m_carry = 0;
    m_zero = 0;
    m_interrupt = eIntDisabled;
    clearHighlighted();
}

bool ProcSimCoreData::takeContentChanged()
{
    const bool changed = m_contentChanged;
    m_contentChanged = false;
    return changed;
}

} // namespace nsProc
