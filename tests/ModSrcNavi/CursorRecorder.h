#pragma once

#include "FakeEditorHook.h"

#include <functional>

/// An editor that records where the cursor was sent.
class CursorRecorder : public FakeEditorHook
{
public:
    struct Cursor
    {
        QString path;
        QString lineRef;
        int line;
    };

    using FakeEditorHook::setCursorToLine;
    void setCursorToLine(QString path, QString lineRef, int line) override
    {
        if (whenCursor)
            whenCursor();
        cursors.append({path, lineRef, line});
    }
    void setCursorToLine(QString path, int line) override { setCursorToLine(path, QString(), line); }

    QList<Cursor> cursors;
    std::function<void()> whenCursor; ///< knob: what happens inside of a call, before it uses its arguments
};
