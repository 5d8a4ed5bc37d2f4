#include "LabelTarget.h"

#include "Label.h"
#include "LabelList.h"
#include "OpcodeList.h"

namespace nsModAsmFe {

LabelTarget LabelTarget::find(const LabelList& labels, const OpcodeList& opcodes, const QString& name)
{
    // A name of a source is bytes, one a character, as the assembler reads them.
    QString bytes = QString::fromLatin1(name.toLocal8Bit());
    if (bytes.startsWith("::"))
        bytes.remove(0, 2);
    const int colons = bytes.lastIndexOf("::");
    const QString nameSpace = colons < 0 ? QString() : bytes.left(colons);
    LabelTarget target;
    target.label = labels.find(nameSpace, colons < 0 ? bytes : bytes.mid(colons + 2));
    if (target.label != nullptr)
        target.opcode = opcodes.nextOfSrcRef(target.label->srcRef.fileNo, target.label->srcRef.lineNo);
    return target;
}

} // namespace nsModAsmFe
