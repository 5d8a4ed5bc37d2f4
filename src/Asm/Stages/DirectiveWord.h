#pragma once

#include <QRegExp>
#include <QString>

namespace nsModAsmFe {

/// One word that begins and ends with a letter, a figure or an underscore, as the names of defines and namespaces do.
inline bool isDirectiveWord(const QString& text)
{
    // A match changes the expression, and programs are assembled by several threads.
    static thread_local const QRegExp word("^\\b\\S+\\b$");
    return word.exactMatch(text);
}

} // namespace nsModAsmFe
