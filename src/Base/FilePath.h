#pragma once

#include <QString>

/// Where a write to the path would end: absolute, with all links resolved. The file need not exist, nor its folder.
QString pathWithoutLinks(const QString& path);

/// Do both paths lead to the same existing file, by links or as two names of it?
bool isSameFile(const QString& path, const QString& other);
