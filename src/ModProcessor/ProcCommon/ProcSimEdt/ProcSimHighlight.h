#pragma once

class QWidget;

namespace nsProc {

/// Marks a widget as showing what the program has just changed: red text, by a rule of the style sheet.
void showHighlight(QWidget* widget, bool highlighted);

} // namespace nsProc
