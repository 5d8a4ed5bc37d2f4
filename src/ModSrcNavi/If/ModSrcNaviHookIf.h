#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class ModSrcNaviPluginIf;
class ModSrcNaviPluginIfSymbols;

namespace nsModSrcNavi {
struct NaviTag;
}

/// The table of contents of the sources. Served by nsModSrcNavi::ModSrcNavi.
class ModSrcNaviHookIf
{
public:
    virtual ~ModSrcNaviHookIf() = default;

    virtual void registerPlugin(ModSrcNaviPluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModSrcNaviPluginIf* plugin) = 0;
    /// One client at a time: a second one takes the place of the first.
    virtual void registerPlugin(ModSrcNaviPluginIfSymbols* plugin) = 0;
    virtual void unregisterPlugin(ModSrcNaviPluginIfSymbols* plugin) = 0;

    virtual void clearTagList() = 0;
    /// Appends a tag; takes its ownership.
    virtual void addTag(nsModSrcNavi::NaviTag* tag) = 0;
    /// All tags of a run are there: shows them.
    virtual void showTagList() = 0;
    /// What the assembler knows of the project's files, all absolute paths: for the list of files.
    /// @param errors number of errors of the last run in each source that has some
    virtual void setTargetFiles(QStringList templates, QStringList outputs, QMap<QString, int> errors) = 0;
};
