#include "ButtonCommand.h"

#include <QAction>
#include <QPointer>
#include <QToolButton>
#include <QVariant>

namespace {

const char* const property = "buttonCommand";

} // namespace

void ButtonCommand::set(QAbstractButton* button, QAction* action)
{
    button->setProperty(property, QVariant::fromValue(QPointer<QAction>(action)));
}

QAction* ButtonCommand::of(const QAbstractButton* button)
{
    const auto* tool = qobject_cast<const QToolButton*>(button);
    if (tool != nullptr && tool->defaultAction() != nullptr)
        return tool->defaultAction();
    return button->property(property).value<QPointer<QAction>>();
}
