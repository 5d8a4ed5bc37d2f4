#pragma once

namespace nsModEditor {

/// How a document helps while its text is written, as the user has set it.
struct sEditorComfort_t
{
    static constexpr int maxRulerColumn = 1000;

    bool indentWithBlanks = false; ///< instead of tabs
    bool smartHomeEn = false;      ///< the key Home goes to the first character that is no blank
    bool trimOnSaveEn = false;     ///< a save removes the blanks at the end of lines
    bool showBlanksEn = false;
    int rulerColumn = 0; ///< characters before the line at the right; 0 for no line
    bool marksFollowTextEn = false;
    bool keepMarksEn = false; ///< marks and zoom are there again when the project is opened the next time
};

} // namespace nsModEditor
