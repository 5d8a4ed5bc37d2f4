#pragma once

#include "ModPluginIf.h"

#include <QList>

/// The clients of one service, in registration order.
///
/// The list owns nothing. It never holds a client twice, and clients may register or leave while it is iterated.
template <class Plugin>
class PluginList
{
public:
    /// @return true if the client is new; a null pointer and a known client change nothing
    bool add(Plugin* plugin)
    {
        if (plugin == nullptr || m_plugins.contains(plugin))
            return false;
        m_plugins.append(plugin);
        return true;
    }

    /// @return true if the client was in the list
    bool remove(Plugin* plugin) { return plugin != nullptr && m_plugins.removeOne(plugin); }

    bool contains(Plugin* plugin) const { return m_plugins.contains(plugin); }
    int count() const { return m_plugins.size(); }

    /// A copy, in registration order.
    QList<Plugin*> plugins() const { return m_plugins; }

    /// Calls f with each client in order. A client that leaves during the walk is not called any more.
    template <class Function>
    void forEach(Function f) const
    {
        const QList<Plugin*> copy = m_plugins;
        for (Plugin* plugin : copy) {
            if (m_plugins.contains(plugin))
                f(plugin);
        }
    }

private:
    QList<Plugin*> m_plugins;
};

/// Plug-in discovery: hands every module that is also a client of the kind Plugin to the server's registerPlugin().
///
/// This is the one place in the program with the cast from a module to its plug-in interfaces.
template <class Plugin, class Server>
void registerPluginsOf(const QList<ModPluginIf*>& modules, Server* server)
{
    for (ModPluginIf* module : modules) {
        if (Plugin* plugin = dynamic_cast<Plugin*>(module))
            server->registerPlugin(plugin);
    }
}
