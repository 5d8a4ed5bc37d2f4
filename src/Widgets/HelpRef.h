#pragma once

#include <QString>

class QDialog;
class QDialogButtonBox;
class QWidget;

/// What leads from a widget into the help.
namespace HelpRef {

/// Name of the property that holds the page about a widget and what it contains.
extern const char* const property;
/// Name of the property of a text that holds the page about its names.
extern const char* const propertyForNames;

/// F1 in the widget opens this page.
/// @param page "pageId://" and the id of a page, with "#" and an anchor if it is a section
void set(QWidget* widget, const QString& page);
/// F1 on a word of this text that no page explains opens this page: such words are names, and the page is about them.
void setForNames(QWidget* text, const QString& page);
/// "What's this" on the widget, or on what it contains, shows the text with a link to the page, which F1 opens, too.
/// @param text plain text, a few sentences
void setWhatsThis(QWidget* widget, const QString& text, const QString& page);
/// F1 in the dialog opens this page, and so does a button "Help" that is appended to its buttons.
/// @param buttons the dialog's own
void set(QDialog* dialog, const QString& page, QDialogButtonBox* buttons);
/// As F1 in the widget does: whoever shows the help gets a QEvent::HelpRequest of it. Without any, nothing happens.
void request(QWidget* widget);

} // namespace HelpRef
