#pragma once

#include "HelpSources.h"

#include <QDir>
#include <QDirIterator>
#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

/// The help of the source tree.
namespace HelpTree {

inline QString sourceDir()
{
    return QStringLiteral(NALVO_SOURCE_DIR);
}

inline QString folder()
{
    return sourceDir() + QStringLiteral("/help");
}

inline QString changeLog()
{
    return sourceDir() + QStringLiteral("/CHANGELOG.md");
}

/// Where the build puts the pictures of the window.
inline QString pictures()
{
    return QStringLiteral(NALVO_BINARY_DIR "/help-pictures");
}

/// All pages, read once.
inline const nsHelpBuild::HelpSources& help()
{
    static const nsHelpBuild::HelpSources sources = [] {
        nsHelpBuild::HelpSources read;
        read.read(folder(), changeLog());
        return read;
    }();
    return sources;
}

/// The page with an id, in any case; null if there is none.
inline const nsHelpBuild::HelpPage* page(const QString& id)
{
    const QVector<nsHelpBuild::HelpPage>& pages = help().pages();
    const auto it = std::find_if(pages.cbegin(), pages.cend(), [&](const nsHelpBuild::HelpPage& candidate) {
        return candidate.id.compare(id, Qt::CaseInsensitive) == 0;
    });
    return it != pages.cend() ? &*it : nullptr;
}

/// Has a page a place of this name?
inline bool hasAnchor(const nsHelpBuild::HelpPage& page, const QString& name)
{
    return std::any_of(page.anchors.cbegin(), page.anchors.cend(),
                       [&](const nsHelpBuild::HelpAnchor& anchor) { return anchor.name == name; });
}

/// The files that people write, relative to the tree.
inline std::vector<QString> files()
{
    std::vector<QString> files;
    for (const char* part : {"/pages", "/instructions"}) {
        QDirIterator it(folder() + QLatin1String(part), {QStringLiteral("*.md")}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            files.push_back(QDir(sourceDir()).relativeFilePath(it.next()));
    }
    files.push_back(QStringLiteral("CHANGELOG.md"));
    std::sort(files.begin(), files.end());
    return files;
}

inline std::string testName(const ::testing::TestParamInfo<QString>& info)
{
    QString name = info.param;
    name.remove(QStringLiteral("help/")).remove(QStringLiteral(".md"));
    for (QChar& c : name) {
        if (!c.isLetterOrNumber())
            c = '_';
    }
    return name.toStdString();
}

} // namespace HelpTree
