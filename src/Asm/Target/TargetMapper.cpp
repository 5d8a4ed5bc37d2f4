#include "TargetMapper.h"

#include "AsmFeMsgHndlr.h"
#include "IODev.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace nsModAsmFe {

namespace {

/// Opens a file for writing. A pipe is opened only if another process reads it: without a reader, writing would block
/// forever.
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

TargetMapper::TargetMapper(QObject* parent)
    : QObject(parent)
{
}

bool TargetMapper::fail(eMsgType_t type, const QString& arg1, const QString& arg2, const QString& arg3)
{
    AsmFeMsgHndlr::showMsg(modMsgHook, type, nsModMsg::MsgUrl(), arg1, arg2, arg3);
    return false;
}

void TargetMapper::warn(eMsgType_t type)
{
    AsmFeMsgHndlr::showMsg(modMsgHook, type, nsModMsg::MsgUrl());
}

bool TargetMapper::checkType(const IODev* dev)
{
    return dev->devType != IODev::unset || fail(errTargetNoType, dev->devName);
}

bool TargetMapper::checkSize(const IODev* dev)
{
    return dev->memSize > 0 || fail(errTargetNoSize, QString::number(dev->memSize));
}

bool TargetMapper::writeBytes(const QString& file, const QByteArray& bytes, eMsgType_t openError)
{
    QFile output(file);
    if (!openOutput(&output))
        return fail(openError, file);
    // Nothing of the old content may follow what a full disk or a kill leaves of the new one.
    output.resize(0);
    // A full disk may be reported as late as when the file is closed.
    const bool written = output.write(bytes) == bytes.size() && output.flush();
    output.close();
    return (written && output.error() == QFile::NoError) || fail(errTargetWrite, file, output.errorString());
}

} // namespace nsModAsmFe
