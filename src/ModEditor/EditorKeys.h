#pragma once

#include <QLatin1String>

/// The keys under which the module stores settings: those of the user, and of an open project the tab indent and the
/// documents.
namespace nsModEditor::editorKeys {

inline const QLatin1String tabIndent("ModEditor/tabIndent"); ///< in both
inline const QLatin1String dynamicLineWrapEn("ModEditor/dynamicLineWrapEn");
inline const QLatin1String lineNumberEn("ModEditor/lineNumberEn");
inline const QLatin1String autoReturnIndentEn("ModEditor/autoReturnIndentEn");
inline const QLatin1String textCompletionEn("ModEditor/textCompletionEn");
inline const QLatin1String textCompleterPrefixLength("ModEditor/textCompleterPrefixLength");
inline const QLatin1String textCompleterItemCount("ModEditor/textCompleterItemCount");
inline const QLatin1String reloadKeepsUndo("ModEditor/reloadKeepsUndo");
inline const QLatin1String highlightSelectionEn("ModEditor/highlightSelectionEn");
inline const QLatin1String indentWithBlanks("ModEditor/indentWithBlanks");
inline const QLatin1String smartHomeEn("ModEditor/smartHomeEn");
inline const QLatin1String trimOnSaveEn("ModEditor/trimOnSaveEn");
inline const QLatin1String showBlanksEn("ModEditor/showBlanksEn");
inline const QLatin1String rulerColumn("ModEditor/rulerColumn");
inline const QLatin1String marksFollowTextEn("ModEditor/marksFollowTextEn");
inline const QLatin1String keepMarksEn("ModEditor/keepMarksEn");
inline const QLatin1String memPageAddrEn("ModEditor/memPageAddrEn");
inline const QLatin1String cursorBgColor("ModEditor/cursorBgColor");
inline const QLatin1String highlightBgColor("ModEditor/highlightBgColor");
inline const QLatin1String leftMarginBgColor("ModEditor/leftMarginBgColor");
inline const QLatin1String leftMarginFgColor("ModEditor/leftMarginFgColor");
inline const QLatin1String simBreakpointSymbolColor("ModEditor/simBreakpointSymbolColor");
inline const QLatin1String simStartAddressSymbolColor("ModEditor/simStartAddressSymbolColor");
inline const QLatin1String bookmarkSymbolColor("ModEditor/bookmarkSymbolColor");
inline const QLatin1String stdFont("ModEditor/stdFont");
inline const QLatin1String fontFormats("ModEditor/font/"); ///< followed by the name of the context

inline const QLatin1String openFiles("ModEditor/openFiles"); ///< in the project, as those below
inline const QLatin1String lastFile("ModEditor/lastFile");
inline const QLatin1String lastCursorPos("ModEditor/lastCursorPos");

} // namespace nsModEditor::editorKeys
