#pragma once

#include "HelpPage.h"

#include <QHash>

namespace nsHelpBuild {

/// What the program's tables know of a message.
struct MessageText
{
    enum eGrade_t { gradeGroup, gradeInfo, gradeWarning, gradeError };
    eGrade_t grade = gradeError;
    QString text;
};

/// By the message's key.
using MessageTexts = QHash<QString, MessageText>;

/// Turns the Markdown of a page into HTML, and collects what the page holds and leads to.
class MarkdownConverter
{
public:
    /// @param messages of the page: shown below the headings that are their keys
    explicit MarkdownConverter(const MessageTexts& messages)
        : m_messages(messages)
    {
    }

    void convert(HelpPage* page) const;

    /// The anchor of a heading without one of its own: a single word itself, otherwise its words in lower case with
    /// hyphens.
    static QString anchorOf(const QString& heading);

private:
    const MessageTexts& m_messages;
};

} // namespace nsHelpBuild
