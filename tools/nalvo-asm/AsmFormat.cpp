#include "AsmFormat.h"

#include "BatchFiles.h"
#include "BatchOutput.h"
#include "SourceFormatter.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace nsNalvoAsm {

using namespace nsBatch;

namespace {

const qint64 maxSize = 1 << 28; ///< bytes of a source

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-asm", text);
}

} // namespace

QString formatFile(const QString& file, bool inPlace)
{
    QFile input(file);
    const bool opened = file == "-"                ? input.open(stdin, QIODevice::ReadOnly)
                        : QFileInfo(file).isFile() ? input.open(QIODevice::ReadOnly)
                                                   : false;
    if (!opened)
        return QFileInfo::exists(file) && !QFileInfo(file).isFile()
                   ? tr("Can not read %1: %2").arg(file, tr("it is no file"))
                   : tr("Can not read %1: %2")
                         .arg(file, QFileInfo::exists(file) ? input.errorString() : tr("it does not exist"));
    const QByteArray source = input.read(maxSize + 1);
    if (input.error() != QFileDevice::NoError)
        return tr("Can not read %1: %2").arg(file, input.errorString());
    if (source.size() > maxSize)
        return tr("Can not read %1: %2").arg(file, tr("it is too large"));
    const QByteArray result = nsModAsmFe::SourceFormatter().formatted(source);
    if (!inPlace) {
        print(stdout, result);
        return QString();
    }
    if (result == source)
        return QString();
    OutputFile output;
    QString failure = output.open(file);
    if (failure.isEmpty())
        failure = output.write(result) ? output.commit() : output.failure();
    return failure.isEmpty() ? QString() : tr("Can not write %1: %2").arg(file, failure);
}

} // namespace nsNalvoAsm
