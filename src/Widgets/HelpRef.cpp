#include "HelpRef.h"

#include <QCoreApplication>
#include <QWidget>

namespace HelpRef {

const char* const property = "helpRef";

void set(QWidget* widget, const QString& page)
{
    widget->setProperty(property, page);
}

void setWhatsThis(QWidget* widget, const QString& text, const QString& page)
{
    const QString more = QCoreApplication::translate("HelpRef", "More in the help");
    widget->setWhatsThis(
        QStringLiteral("<p>%1</p><p><a href=\"%2\">%3</a></p>").arg(text.toHtmlEscaped(), page, more.toHtmlEscaped()));
    set(widget, page);
}

} // namespace HelpRef
