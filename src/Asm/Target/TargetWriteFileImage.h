#pragma once

#include "TargetFile.h"
#include "TargetMapper.h"

#include <QByteArray>

#include <vector>

namespace nsModAsmFe {

/// Writes all words of a device, from address 0 to the end, as an image for a tool of a vendor: words that nothing
/// wrote hold the device's initial value. A word that does not fit into the width of the file is an error, and no file
/// is written: what the tool would cut off would be missing in the memory.
class TargetWriteFileImage : public TargetMapper
{
    Q_OBJECT

public:
    /// @return false after a reported error
    bool writeFile(IODev* dev, const MetaTags*) override;

protected:
    using Words = std::vector<unsigned int>;

    /// @param kind which of the targets of a device is written
    TargetWriteFileImage(eTargetKind_t kind, QObject* parent);

    /// The bytes of the file.
    /// @param words each of at most `target.wordWidth` bits
    virtual QByteArray bytes(const Words& words, const TargetFile& target) const = 0;

private:
    eTargetKind_t m_kind;
};

/// Memory initialization file: a header with width and depth, then a line a word with its address.
class TargetWriteFileMif : public TargetWriteFileImage
{
    Q_OBJECT

public:
    explicit TargetWriteFileMif(QObject* parent = nullptr)
        : TargetWriteFileImage(kindMif, parent)
    {
    }

protected:
    QByteArray bytes(const Words& words, const TargetFile& target) const override;
};

/// Coefficients: the words in radix 16, separated by commas.
class TargetWriteFileCoe : public TargetWriteFileImage
{
    Q_OBJECT

public:
    explicit TargetWriteFileCoe(QObject* parent = nullptr)
        : TargetWriteFileImage(kindCoe, parent)
    {
    }

protected:
    QByteArray bytes(const Words& words, const TargetFile& target) const override;
};

/// Bytes alone: as many a word as its width needs.
class TargetWriteFileBinary : public TargetWriteFileImage
{
    Q_OBJECT

public:
    explicit TargetWriteFileBinary(QObject* parent = nullptr)
        : TargetWriteFileImage(kindBinary, parent)
    {
    }

protected:
    QByteArray bytes(const Words& words, const TargetFile& target) const override;
};

/// Intel HEX: the bytes of the binary file in records with addresses, or a record a word whose address counts words.
class TargetWriteFileIntelHex : public TargetWriteFileImage
{
    Q_OBJECT

public:
    explicit TargetWriteFileIntelHex(QObject* parent = nullptr)
        : TargetWriteFileImage(kindIntelHex, parent)
    {
    }

protected:
    QByteArray bytes(const Words& words, const TargetFile& target) const override;
};

/// Words behind hexadecimal byte addresses, as the tools read them that put new contents into block RAMs of a bit
/// stream: whole words, or the low halves of all words and then the high ones, for a memory of two block RAMs.
///
/// These tools do not count parity bits: 9 bits are one byte, 18 bits two.
class TargetWriteFileRamMem : public TargetWriteFileImage
{
    Q_OBJECT

public:
    explicit TargetWriteFileRamMem(QObject* parent = nullptr)
        : TargetWriteFileImage(kindRamMem, parent)
    {
    }

protected:
    QByteArray bytes(const Words& words, const TargetFile& target) const override;
};

} // namespace nsModAsmFe
