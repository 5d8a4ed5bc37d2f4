#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace nsNalvoProve {

/// Finds the ports of a Mico8 in a Verilog module whose ports have other names than those that the bench connects: the
/// versions of this core differ.
class PortMap
{
public:
    /// @param code of the module, without comments
    PortMap(const QString& module, const QString& code);

    /// Those of the bench for which the module has none.
    QStringList missing() const;
    /// A module lm8_as_known with the ports of the bench and the module in it, as the instance `part`.
    QByteArray adapter() const;

private:
    void readPorts(const QString& code);
    void readParameters(const QString& code);

    QString m_module;
    QStringList m_inputs;
    QStringList m_outputs;
    QStringList m_parameters;        ///< that the bench sets
    QMap<QString, QString> m_portOf; ///< by the name that the bench has
    bool m_isResetHigh = false;
};

} // namespace nsNalvoProve
