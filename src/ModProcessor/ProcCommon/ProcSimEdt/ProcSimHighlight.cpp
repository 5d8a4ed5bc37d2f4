#include "ProcSimHighlight.h"

#include <QHelpEvent>
#include <QStyle>
#include <QToolTip>
#include <QVariant>
#include <QWidget>

namespace nsProc {

namespace {

const char* const noteProperty = "highlightNote";

} // namespace

void showHighlight(QWidget* widget, bool highlighted)
{
    // The style sheet defines the colours, so the style is applied to the widget again.
    widget->setProperty("highlighted", highlighted);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

void setHighlightNote(QWidget* dock, const QString& note)
{
    dock->setProperty(noteProperty, note);
}

QString highlightNote(const QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const QVariant note = widget->property(noteProperty);
        if (note.isValid())
            return note.toString();
    }
    return QString();
}

bool showHighlightToolTip(QWidget* field, const QHelpEvent* event)
{
    const QString note = highlightNote(field);
    if (note.isEmpty())
        return false;
    QToolTip::showText(event->globalPos(), field->toolTip() + '\n' + note, field);
    return true;
}

} // namespace nsProc
