#pragma once

#include "SourceTree.h"

#include <QStringList>

namespace nsHouse {

/// Colours that stand elsewhere than in the table of colours.
class ColorScan
{
public:
    explicit ColorScan(const SourceTree& tree);

    /// "path:line: text" of each; empty if there is none.
    const QStringList& findings() const { return m_findings; }

private:
    QStringList m_findings;
};

} // namespace nsHouse
