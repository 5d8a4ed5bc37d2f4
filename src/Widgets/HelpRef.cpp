#include "HelpRef.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QWidget>

namespace HelpRef {

const char* const property = "helpRef";
const char* const propertyForNames = "helpRefForNames";

void set(QWidget* widget, const QString& page)
{
    widget->setProperty(property, page);
}

void setForNames(QWidget* text, const QString& page)
{
    text->setProperty(propertyForNames, page);
}

void setWhatsThis(QWidget* widget, const QString& text, const QString& page)
{
    const QString more = QCoreApplication::translate("HelpRef", "More in the help");
    widget->setWhatsThis(
        QStringLiteral("<p>%1</p><p><a href=\"%2\">%3</a></p>").arg(text.toHtmlEscaped(), page, more.toHtmlEscaped()));
    set(widget, page);
}

void set(QDialog* dialog, const QString& page, QDialogButtonBox* buttons)
{
    set(dialog, page);
    dialog->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    // Enter in the dialog must not choose it.
    QPushButton* help = buttons->addButton(QDialogButtonBox::Help);
    help->setAutoDefault(false);
    help->setToolTip(QCoreApplication::translate("HelpRef", "Shows the help page of this dialog (F1)"));
    QObject::connect(buttons, &QDialogButtonBox::helpRequested, dialog, [dialog] { request(dialog); });
}

void request(QWidget* widget)
{
    QEvent event(QEvent::HelpRequest);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace HelpRef
