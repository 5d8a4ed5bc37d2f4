#include "ScriptTimeouts.h"

#include <QTimer>

namespace nsModScript {

namespace {

const int deferred = 10; ///< milliseconds until a function that could not run is tried again

} // namespace

int ScriptTimeouts::add(const QScriptValue& function, int milliseconds)
{
    const int id = ++m_last;
    auto* timer = new QTimer(this);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this, id] { emit due(id); });
    m_entries[id] = {function, timer};
    timer->start(qMax(milliseconds, 0));
    emit changed();
    return id;
}

void ScriptTimeouts::remove(int id)
{
    take(id);
}

QScriptValue ScriptTimeouts::take(int id)
{
    const auto it = m_entries.find(id);
    if (it == m_entries.end())
        return QScriptValue();
    const sEntry_t entry = it->second;
    m_entries.erase(it);
    // The call may come from the timer.
    entry.timer->stop();
    entry.timer->deleteLater();
    emit changed();
    return entry.function;
}

void ScriptTimeouts::defer(int id)
{
    const auto it = m_entries.find(id);
    if (it != m_entries.end())
        it->second.timer->start(deferred);
}

void ScriptTimeouts::clear()
{
    if (isEmpty())
        return;
    for (const auto& entry : m_entries) {
        entry.second.timer->stop();
        entry.second.timer->deleteLater();
    }
    m_entries.clear();
    emit changed();
}

} // namespace nsModScript
