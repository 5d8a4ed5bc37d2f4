#pragma once

#include <QString>

class QWidget;

/// What leads from a widget into the help.
namespace HelpRef {

/// Name of the property that holds the page about a widget and what it contains.
extern const char* const property;

/// F1 in the widget opens this page.
/// @param page "pageId://" and the id of a page, with "#" and an anchor if it is a section
void set(QWidget* widget, const QString& page);
/// "What's this" on the widget, or on what it contains, shows the text with a link to the page, which F1 opens, too.
/// @param text plain text, a few sentences
void setWhatsThis(QWidget* widget, const QString& text, const QString& page);

} // namespace HelpRef
