#include "MySectionTitle.h"

MySectionTitle::MySectionTitle(QWidget* parent)
    : MySectionTitle(QString(), parent)
{
}

MySectionTitle::MySectionTitle(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setObjectName(QStringLiteral("sectionTitle"));
}
