#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>

namespace nsImport {

class ImageBuilder;

/// One block RAM with its first contents, as a VHDL or Verilog file has it.
struct HdlMemory
{
    /// 256 bits: the byte with the lowest bits first.
    struct Block
    {
        QByteArray bytes;
        int line = 0;
    };

    QString label;     ///< of the instance; may be empty
    QString component; ///< what it is an instance of; may be empty
    QString text;      ///< of the instance with its generics and ports
    int line = 0;
    QMap<int, Block> data;   ///< INIT_xx by xx
    QMap<int, Block> parity; ///< INITP_xx by xx
};

/// Finds the memories of a VHDL or Verilog file: generics, parameters, attributes, and values of defparam.
/// @return false after a reported error
bool findHdlMemories(const QByteArray& content, QVector<HdlMemory>* memories, ImageBuilder* image);

} // namespace nsImport
