#include "TargetMapper.h"

#include "IODev.h"
#include "ModMsgHookIf.h"

#include <QFile>

namespace nsModAsmFe {

TargetMapper::TargetMapper(ModMsgHookIf* msgHook, QObject* parent) : QObject(parent)
{
    modMsgHook = msgHook;
}

bool TargetMapper::fail(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(text);
    return false;
}

void TargetMapper::warn(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showWarningMessage(text);
}

bool TargetMapper::checkType(const IODev* dev)
{
    return dev->devType != IODev::unset || fail(tr("Memory type for %1 is not defined.").arg(dev->devName));
}

bool TargetMapper::checkSize(const IODev* dev)
{
    return dev->memSize > 0 || fail(tr("Memory size must be greater than zero: ") + QString::number(dev->memSize));
}

bool TargetMapper::writeBytes(const QString& file, const QByteArray& bytes, const QString& openText)
{
    QFile output(file);
    if (!output.open(QIODevice::ReadWrite | QIODevice::Text))
        return fail(openText.arg(file));
    output.resize(0);
    // A full disk may show itself as late as at closing.
    const bool written = output.write(bytes) == bytes.size() && output.flush();
    output.close();
    return (written && output.error() == QFile::NoError) ||
           fail(tr("Can not write output file: %1 (%2)").arg(file, output.errorString()));
}

} // namespace nsModAsmFe
