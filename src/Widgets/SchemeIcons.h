#pragma once

#include <QIcon>

/// Icons made of the pictures in the resources, which are read when an icon is painted.
class SchemeIcons
{
public:
    /// An icon that follows the colour scheme: it shows the dark sister of the picture where there is one.
    /// @param path ":/..." of the light picture. Where there is none, the icon is null
    static QIcon of(const QString& path);
    /// An icon that is the same in every scheme.
    static QIcon always(const QString& path);
};
