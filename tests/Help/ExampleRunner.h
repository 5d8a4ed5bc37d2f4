#pragma once

#include "HelpPage.h"

#include <QString>
#include <QStringList>

/// Assembles the sources of a page and runs its sessions, in their order.
class ExampleRunner
{
public:
    /// Runs the next example of the page.
    /// @return what differs from that which the example says, one text each; kinds that are only shown differ never
    QStringList differences(const nsHelpBuild::HelpExample& example);

    /// Is it an example that something is run for?
    static bool isRun(const nsHelpBuild::HelpExample& example);

private:
    QStringList assemble(const nsHelpBuild::HelpExample& example);
    QStringList runSession(const nsHelpBuild::HelpExample& example) const;
    bool writeFiles(const QString& folder) const;

    QString m_source; ///< the last one so far
    QString m_processor;
};
