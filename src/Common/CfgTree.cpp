#include "CfgTree.h"

CfgTree::CfgTree(QObject* parent)
    : CfgStore(parent)
{
}

QColor CfgTree::value(QString key, QColor dflt)
{
    if (!hasNode(key))
        return dflt;
    const QString text = value(key, QString());
    // The constructor of QColor writes a warning to the debug output if the text names no colour.
    return QColor::isValidColor(text) ? QColor(text) : QColor();
}

void CfgTree::setValue(QString key, QColor value)
{
    setValue(key, value.name());
}

QFont CfgTree::font(QString key, QFont dflt)
{
    const QString text = value(key, QString());
    QFont result = dflt;
    // QFont would accept an empty text as a font family without a name.
    if (text.trimmed().isEmpty() || !result.fromString(text))
        return dflt;
    return result;
}

void CfgTree::setFont(QString key, QFont value)
{
    setValue(key, value.toString());
}
