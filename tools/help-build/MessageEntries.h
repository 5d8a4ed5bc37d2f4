#pragma once

#include "HelpPage.h"

namespace nsHelpBuild {

/// The entries of all messages as one text, for who has no window: nalvo-asm --explain reads it.
///
/// An entry begins with a line "key TAB page id TAB title of the page TAB heading". The lines up to the next one belong
/// to it; each is empty or begins with two blanks. Paragraphs are broken at 80 columns, those blanks not counted.
QByteArray messageEntries(const QVector<HelpPage>& pages);

} // namespace nsHelpBuild
