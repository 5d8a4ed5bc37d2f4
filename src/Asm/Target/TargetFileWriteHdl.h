#pragma once

#include "TargetFile.h"
#include "TargetMapper.h"

#include <QByteArray>

namespace nsModAsmFe {

/// Fills an HDL template with a device's contents. VHDL and Verilog differ in nothing but words and in the fields of
/// the device.
///
/// A template starts after the line with "{BEGIN TEMPLATE}". Its text is copied byte for byte, except for placeholders:
/// each line can have one of each kind of block, and one text about the project. The template must use every cell of
/// the device.
class TargetFileWriteHdl : public TargetMapper
{
    Q_OBJECT

public:
    using TargetMapper::TargetMapper;

    /// @return false after a reported error
    bool writeFile(IODev* dev, const MetaTags* metaTags) override;

protected:
    /// "VHDL" or "Verilog", as messages name it.
    virtual QString language() const = 0;
    virtual eTargetKind_t kind() const = 0;

    // One block of 256 bits as 64 hexadecimal digits, the highest address first. The index counts blocks. Both
    // languages use the same digits; the functions are named after VHDL.
    QByteArray getVhdlInit(qint64 index);   ///< bits 15:0 of 16 words
    QByteArray getVhdlInitP(qint64 index);  ///< bits 17:16 of 128 words
    QByteArray getVhdlInitL(qint64 index);  ///< bits 7:0 of 32 words
    QByteArray getVhdlInitPL(qint64 index); ///< bit 8 of 256 words
    QByteArray getVhdlInitH(qint64 index);  ///< bits 16:9 of 32 words
    QByteArray getVhdlInitHP(qint64 index); ///< bit 17 of 256 words

    /// A cell's value, which marks the cell as written to the file; the initial value outside of the device.
    unsigned int getOpcode(int addr);
    /// Warns that the template is larger than the device, once a file.
    void signWarningStuffingMemory();

private:
    struct sBlock_t;

    bool fillTemplate(const TargetFile& target, const MetaTags& metaTags, QByteArray* text);
    void fillLine(QByteArray* line, const TargetFile& target, const MetaTags& metaTags);
    bool fillMetaTag(QByteArray* line, const TargetFile& target, const MetaTags& metaTags);
    bool fillBlock(QByteArray* line, const sBlock_t& block);
    template <class Digits>
    QByteArray getBlock(qint64 index, int words, int wordsPerStep, Digits digits);
    QByteArray getParityBlock(qint64 index, int bit);
    bool checkComplete();

    IODev* m_dev = nullptr; ///< during writeFile(); not owned
    bool m_warnStuffing = false;
};

} // namespace nsModAsmFe
