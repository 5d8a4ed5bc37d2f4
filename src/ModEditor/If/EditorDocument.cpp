#include "EditorDocument.h"

namespace nsModEditor {

EditorDocument::EditorDocument(QWidget* parent)
    : QPlainTextEdit(parent)
{
}

} // namespace nsModEditor
