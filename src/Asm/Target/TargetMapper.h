#pragma once

#include "AsmFeMsgCatalogue.h"
#include "ModMsgPluginIf.h"

#include <QObject>
#include <QString>

class QByteArray;

namespace nsModAsmFe {

class IODev;
struct MetaTags;

/// What all writers of output files have in common: their way to report, and the file itself. They report through the
/// message service that they are registered with, and in silence without one.
class TargetMapper : public QObject, public ModMsgPluginIf
{
    Q_OBJECT

public:
    explicit TargetMapper(QObject* parent = nullptr);

    /// Writes the contents of a device to the file that the device has for this kind.
    /// @param metaTags texts for templates
    /// @return false after a reported error
    virtual bool writeFile(IODev* dev, const MetaTags* metaTags) = 0;

protected:
    /// Reports an error. @return false
    bool fail(eMsgType_t type, const QString& arg1 = QString(), const QString& arg2 = QString(),
              const QString& arg3 = QString());
    void warn(eMsgType_t type);
    /// @return the device has a kind; else an error is reported
    bool checkType(const IODev* dev);
    /// @return the device has cells; else an error is reported
    bool checkSize(const IODev* dev);
    /// Writes the bytes into the file, whatever it held.
    /// @param openError reports a file that cannot be opened, with its name
    bool writeBytes(const QString& file, const QByteArray& bytes, eMsgType_t openError);
};

} // namespace nsModAsmFe
