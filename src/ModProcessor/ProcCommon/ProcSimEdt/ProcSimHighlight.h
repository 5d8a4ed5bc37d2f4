#pragma once

class QHelpEvent;
class QString;
class QWidget;

namespace nsProc {

/// Marks a widget as showing what the program has just changed: red text, by a rule of the style sheet.
void showHighlight(QWidget* widget, bool highlighted);

/// Text that the tool tips of highlighted fields in a dock add: since when the field is highlighted.
void setHighlightNote(QWidget* dock, const QString& note);
/// The note of the dock that contains a widget; empty if it has none.
QString highlightNote(const QWidget* widget);
/// Shows the tool tip of a highlighted field, with the note of its dock.
/// @return false, with nothing shown, if there is no note
bool showHighlightToolTip(QWidget* field, const QHelpEvent* event);

} // namespace nsProc
