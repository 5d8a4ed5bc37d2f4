#pragma once

#include "MarkdownConverter.h"

namespace nsHelpBuild {

/// The messages that have their entries on a page. @param pageId in any case
MessageTexts messagesOfPage(const QString& pageId);

/// The ids of all pages with entries of messages that the program's tables list.
QStringList messagePages();

} // namespace nsHelpBuild
