#pragma once

#include <QObject>
#include <QScriptValue>

#include <map>

class QTimer;

namespace nsModScript {

/// Functions of scripts that wait for their time.
class ScriptTimeouts : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// @param milliseconds from now; less than 0 counts as 0
    /// @return number of the entry, from 1 on, never used twice
    int add(const QScriptValue& function, int milliseconds);
    /// Does nothing if there is no such entry.
    void remove(int id);
    void clear();
    bool isEmpty() const { return m_entries.empty(); }
    /// The function of an entry, which is removed.
    QScriptValue take(int id);
    /// The time has come at a moment that does not suit: it comes again soon.
    void defer(int id);

signals:
    void due(int id);
    /// There are entries, or none any more.
    void changed();

private:
    struct sEntry_t
    {
        QScriptValue function;
        QTimer* timer; ///< child of this
    };

    std::map<int, sEntry_t> m_entries;
    int m_last = 0;
};

} // namespace nsModScript
