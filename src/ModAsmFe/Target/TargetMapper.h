#pragma once

#include "ModMsgPluginIf.h"

#include <QObject>
#include <QString>

class QByteArray;

namespace nsModAsmFe {

class IODev;

/// What all writers of output files have in common: their way to report, and the file itself.
class TargetMapper : public QObject, public ModMsgPluginIf
{
    Q_OBJECT

public:
    /// @param msgHook where to report; not owned, may be null
    explicit TargetMapper(ModMsgHookIf* msgHook, QObject* parent = nullptr);

protected:
    /// Reports an error. @return false
    bool fail(const QString& text);
    void warn(const QString& text);
    /// @return the device has a kind; else an error is reported
    bool checkType(const IODev* dev);
    /// @return the device has cells; else an error is reported
    bool checkSize(const IODev* dev);
    /// Writes the bytes into the file, whatever it held.
    /// @param openText error text for a file that cannot be opened, with a place for its name
    bool writeBytes(const QString& file, const QByteArray& bytes, const QString& openText);
};

} // namespace nsModAsmFe
