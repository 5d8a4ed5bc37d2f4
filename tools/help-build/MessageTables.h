#pragma once

#include "MarkdownConverter.h"

namespace nsHelpBuild {

/// The messages that have their entries on a page. @param pageId in any case
MessageTexts messagesOfPage(const QString& pageId);

/// The ids of all pages with entries of messages that the program's tables list.
QStringList messagePages();

/// The ids of all pages that consist of entries of messages: those above, and those of messages without a table.
QStringList entryPages();

} // namespace nsHelpBuild
