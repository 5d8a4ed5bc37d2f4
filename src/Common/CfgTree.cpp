#include "CfgTree.h"

namespace {

const QLatin1String versionAttribute("version");
const QLatin1Char listSeparator(':');

QString escapeElement(QString text)
{
    text.replace(QLatin1String("&"), QLatin1String("&amp;"));
    text.replace(QLatin1String(":"), QLatin1String("&#58;"));
    return text;
}

QString unescapeElement(QString text)
{
    text.replace(QLatin1String("&#58;"), QLatin1String(":"));
    text.replace(QLatin1String("&amp;"), QLatin1String("&"));
    return text;
}

} // namespace

CfgTree::CfgTree(QObject* parent)
    : QObject(parent)
{
}

void CfgTree::clear()
{
    m_root.clear();
}

QString CfgTree::encString(QString text) const
{
    return text;
}

QString CfgTree::decString(QString text) const
{
    return text;
}

QStringList CfgTree::getNodeList(const QString& key) const
{
    return key.split(QLatin1Char('/'), Qt::SkipEmptyParts, Qt::CaseSensitive);
}

CfgNode* CfgTree::addNode(QStringList path)
{
    CfgNode* node = &m_root;
    for (const QString& name : path) {
        CfgNode* next = node->child(name);
        node = next != nullptr ? next : node->addChild(name);
    }
    return node;
}

CfgNode* CfgTree::getNode(QStringList path)
{
    CfgNode* node = &m_root;
    for (const QString& name : path) {
        node = node->child(name);
        if (node == nullptr)
            return nullptr;
    }
    return node;
}

bool CfgTree::hasNode(QString key)
{
    return find(key) != nullptr;
}

void CfgTree::removeNode(QString key)
{
    QStringList path = getNodeList(key);
    if (path.isEmpty())
        return;
    const QString name = path.takeLast();
    if (CfgNode* parent = getNode(path))
        parent->removeChild(name);
}

int CfgTree::version(QString key)
{
    const CfgNode* node = find(key);
    if (node == nullptr)
        return -1;
    const QString text = node->attribute(versionAttribute);
    return text.isEmpty() ? -1 : text.toInt(nullptr, 10);
}

void CfgTree::setVersion(QString key, const int& version)
{
    addNode(getNodeList(key))->setAttribute(versionAttribute, QString::number(version, 10));
}

QString CfgTree::value(QString key, QString dflt)
{
    const CfgNode* node = find(key);
    return node != nullptr ? decString(node->value()) : dflt;
}

int CfgTree::value(QString key, int dflt)
{
    const CfgNode* node = find(key);
    return node != nullptr ? decString(node->value()).toInt(nullptr, 10) : dflt;
}

QColor CfgTree::value(QString key, QColor dflt)
{
    const CfgNode* node = find(key);
    if (node == nullptr)
        return dflt;
    const QString text = decString(node->value());
    // The constructor of QColor writes a warning to the debug output if the text names no colour.
    return QColor::isValidColor(text) ? QColor(text) : QColor();
}

QDate CfgTree::value(QString key, QDate dflt)
{
    const CfgNode* node = find(key);
    return node != nullptr ? QDate::fromString(decString(node->value()), Qt::ISODate) : dflt;
}

QStringList CfgTree::value(QString key, QStringList dflt)
{
    const CfgNode* node = find(key);
    if (node == nullptr)
        return dflt;
    QStringList result = decString(node->value()).split(listSeparator, Qt::SkipEmptyParts);
    for (QString& element : result)
        element = unescapeElement(element);
    return result;
}

QFont CfgTree::font(QString key, QFont dflt)
{
    const CfgNode* node = find(key);
    if (node == nullptr)
        return dflt;
    const QString text = decString(node->value());
    QFont result = dflt;
    // QFont would accept an empty text as a font family without a name.
    if (text.trimmed().isEmpty() || !result.fromString(text))
        return dflt;
    return result;
}

void CfgTree::setValue(QString key, QString value)
{
    store(key, value);
}

void CfgTree::setValue(QString key, int value)
{
    store(key, QString::number(value, 10));
}

void CfgTree::setValue(QString key, QColor value)
{
    store(key, value.name());
}

void CfgTree::setValue(QString key, QDate value)
{
    store(key, value.toString(Qt::ISODate));
}

void CfgTree::setValue(QString key, QStringList value)
{
    if (value.isEmpty()) {
        store(key, QString());
        return;
    }
    for (QString& element : value)
        element = escapeElement(element);
    store(key, value.join(listSeparator));
}

void CfgTree::setFont(QString key, QFont value)
{
    store(key, value.toString());
}

void CfgTree::print()
{
    m_root.print(QString());
}

CfgNode* CfgTree::find(const QString& key)
{
    return getNode(getNodeList(key));
}

void CfgTree::store(const QString& key, const QString& text)
{
    addNode(getNodeList(key))->setValue(encString(text));
}
