#include "TargetMapper.h"

#include "IODev.h"
#include "ModMsgHookIf.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace nsModAsmFe {

namespace {

/// Opens a file for writing. A pipe takes text only while somebody reads it: without a reader, writing would never end.
bool openOutput(QFile* output)
{
    const QByteArray path = QFile::encodeName(output->fileName());
    struct stat info = {};
    if (stat(path.constData(), &info) != 0 || !S_ISFIFO(info.st_mode))
        return output->open(QIODevice::ReadWrite | QIODevice::Text);
    const int fd = open(path.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return false;
    fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) & ~O_NONBLOCK);
    return output->open(fd, QIODevice::WriteOnly | QIODevice::Text, QFileDevice::AutoCloseHandle);
}

} // namespace

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
    if (!openOutput(&output))
        return fail(openText.arg(file));
    output.resize(0);
    // A full disk may show itself as late as at closing.
    const bool written = output.write(bytes) == bytes.size() && output.flush();
    output.close();
    return (written && output.error() == QFile::NoError) ||
           fail(tr("Can not write output file: %1 (%2)").arg(file, output.errorString()));
}

} // namespace nsModAsmFe
