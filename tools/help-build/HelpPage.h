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
    QString above;       ///< the heading that it is below; empty for those right below the title
};

/// A link from a page to another one, or to a place in it.
struct HelpLink
{
    QString pageId;
    QString anchor; ///< may be empty
};

/// A fenced block of a page.
struct HelpExample
{
    QString info; ///< what stands behind the fence: the kind, and what is expected
    QString text; ///< its lines, each with its end
    int line = 0; ///< of the fence in the source, from 1
};

/// One page of the help: as written, and, once it is converted, as HTML.
struct HelpPage
{
    QString source; ///< where it was written, for reports
    QString id;     ///< as the program knows it
    QString title;
    QStringList keywords;
    QByteArray markdown;
    int headLines = 0; ///< lines of the source in front of the Markdown

    // By MarkdownConverter.
    QByteArray html; ///< the body
    QString intro;   ///< plain text up to the first heading
    QVector<HelpAnchor> anchors;
    QVector<HelpLink> links;
    QStringList pictures; ///< names of files below the folder of pictures
    QStringList webLinks;
    QVector<HelpExample> examples;
    QString prose;        ///< what a spelling checker is to read: no code, no words that are looked up
    QStringList problems; ///< what the page must not hold

    /// Name of its file.
    QString file() const { return id.toLower() + QStringLiteral(".html"); }
};

} // namespace nsHelpBuild
