#pragma once

#include <QFont>

namespace nsProc {

/// The font of the simulator's numbers, in the size of the interface.
inline QFont monospaceFont()
{
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setStyleHint(QFont::Monospace);
    return font;
}

} // namespace nsProc
