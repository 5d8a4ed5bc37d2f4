#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace nsHelpBuild {

/// A place in a page that a link can lead to.
struct HelpAnchor
{
    QString name;
    QString title;
    bool isWord = false; ///< a word that a reader looks up: a message key, a mnemonic, a directive
    QString text;        ///< what stands there up to the next heading, as plain text
};

/// A link from a page to another one, or to a place in it.
struct HelpLink
{
    QString pageId;
    QString anchor; ///< may be empty
};

/// One page of the help: as written, and, once it is converted, as HTML.
struct HelpPage
{
    QString source; ///< where it was written, for reports
    QString id;     ///< as the program knows it
    QString title;
    QStringList keywords;
    QByteArray markdown;

    // By MarkdownConverter.
    QByteArray html; ///< the body
    QString intro;   ///< plain text up to the first heading
    QVector<HelpAnchor> anchors;
    QVector<HelpLink> links;
    QStringList pictures; ///< names of files below the folder of pictures
    QStringList webLinks;
    QStringList problems; ///< what the page must not hold

    /// Name of its file.
    QString file() const { return id.toLower() + QStringLiteral(".html"); }
};

} // namespace nsHelpBuild
