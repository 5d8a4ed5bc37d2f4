#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtGlobal>

#include <map>
#include <utility>
#include <vector>

namespace nsBatch {

/// Changes of a processor's inputs against the clock: values of ports, and requests at the interrupt input.
///
/// They come from a text with one change a line; blank lines and the text after `;` or `#` are ignored:
///     CLOCK port ADDR VALUE       the port has the value from this clock on
///     CLOCK interrupt [LENGTH]    the interrupt input is up from this clock on, for so many clocks; 1 where left out
/// Numbers are decimal, or hexadecimal with 0x in front. The lines may come in any order.
class SimStimulus
{
public:
    /// Reads the whole text. A pipe is waited for until it ends.
    /// @param name "-" is standard input
    /// @return what is wrong, with the place; empty if nothing is
    QString read(const QString& name);

    /// Ascending.
    QList<int> ports() const;
    bool hasPort(int port) const { return m_values.count(port) != 0; }
    /// @return 0 before the first change of the port
    int value(int port, qint64 clock) const;
    /// From and length, ascending.
    const std::vector<std::pair<qint64, qint64>>& requests() const { return m_requests; }

private:
    struct sChange_t
    {
        int value;
        int line;
    };

    /// @return what is wrong
    QString take(const QByteArray& line, int number);
    QString takePort(const QList<QByteArray>& words, qint64 clock, int line);

    std::map<int, std::map<qint64, sChange_t>> m_values; ///< by port and clock
    std::vector<std::pair<qint64, qint64>> m_requests;
};

} // namespace nsBatch
