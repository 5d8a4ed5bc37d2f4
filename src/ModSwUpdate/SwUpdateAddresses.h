#pragma once

#include <QUrl>

namespace nsModSwUpdate {

/// Where updates come from. Both addresses are settings of the build, and empty in a build without one.
struct SwUpdateAddresses
{
    QUrl server;       ///< scheme, host and port alone
    QUrl downloadPage; ///< a page for the browser

    /// @param server host, with or without a scheme and a port; empty for none
    /// @param downloadPage whole address; empty for none
    /// Anything but http and https counts as none.
    SwUpdateAddresses(const QString& server, const QString& downloadPage);
    /// Those of this build.
    static SwUpdateAddresses own();

    static bool isWebScheme(const QUrl& url);
};

} // namespace nsModSwUpdate
