#pragma once

class QPlainTextEdit;

namespace nsModEditor {

/// Where a view is in its text.
struct sViewPlace
{
    int position = 0; ///< of the cursor, in characters
    int anchor = 0;   ///< where its selection begins
    int top = 0;      ///< first row on the screen
    int left = 0;     ///< pixels that are scrolled away

    static sViewPlace of(const QPlainTextEdit* view);
    /// Brings a view there, or as near as its text allows.
    void show(QPlainTextEdit* view) const;
};

} // namespace nsModEditor
