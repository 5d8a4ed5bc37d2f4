#include "CfgStore.h"

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

CfgStore::CfgStore(QObject* parent)
    : QObject(parent)
{
}

void CfgStore::clear()
{
    m_root.clear();
}

QString CfgStore::encString(QString text) const
{
    return text;
}

QString CfgStore::decString(QString text) const
{
    return text;
}

QStringList CfgStore::getNodeList(const QString& key) const
{
    return key.split(QLatin1Char('/'), Qt::SkipEmptyParts, Qt::CaseSensitive);
}

CfgNode* CfgStore::addNode(QStringList path)
{
    CfgNode* node = &m_root;
    for (const QString& name : path) {
        CfgNode* next = node->child(name);
        node = next != nullptr ? next : node->addChild(name);
    }
    return node;
}

CfgNode* CfgStore::getNode(QStringList path)
{
    CfgNode* node = &m_root;
    for (const QString& name : path) {
        node = node->child(name);
        if (node == nullptr)
            return nullptr;
    }
    return node;
}

bool CfgStore::hasNode(QString key)
{
    return find(key) != nullptr;
}

void CfgStore::removeNode(QString key)
{
    QStringList path = getNodeList(key);
    if (path.isEmpty())
        return;
    const QString name = path.takeLast();
    if (CfgNode* parent = getNode(path))
        parent->removeChild(name);
}

int CfgStore::version(QString key)
{
    const CfgNode* node = find(key);
    if (node == nullptr)
        return -1;
    const QString text = node->attribute(versionAttribute);
    return text.isEmpty() ? -1 : text.toInt(nullptr, 10);
}

void CfgStore::setVersion(QString key, const int& version)
{
    addNode(getNodeList(key))->setAttribute(versionAttribute, QString::number(version, 10));
}

QString CfgStore::value(QString key, QString dflt)
{
    const CfgNode* node = find(key);
    return node != nullptr ? decString(node->value()) : dflt;
}

int CfgStore::value(QString key, int dflt)
{
    const CfgNode* node = find(key);
    return node != nullptr ? decString(node->value()).toInt(nullptr, 10) : dflt;
}

QDate CfgStore::value(QString key, QDate dflt)
{
    const CfgNode* node = find(key);
    return node != nullptr ? QDate::fromString(decString(node->value()), Qt::ISODate) : dflt;
}

QStringList CfgStore::value(QString key, QStringList dflt)
{
    const CfgNode* node = find(key);
    if (node == nullptr)
        return dflt;
    QStringList result = decString(node->value()).split(listSeparator, Qt::SkipEmptyParts);
    for (QString& element : result)
        element = unescapeElement(element);
    return result;
}

void CfgStore::setValue(QString key, QString value)
{
    store(key, value);
}

void CfgStore::setValue(QString key, int value)
{
    store(key, QString::number(value, 10));
}

void CfgStore::setValue(QString key, QDate value)
{
    store(key, value.toString(Qt::ISODate));
}

void CfgStore::setValue(QString key, QStringList value)
{
    if (value.isEmpty()) {
        store(key, QString());
        return;
    }
    for (QString& element : value)
        element = escapeElement(element);
    store(key, value.join(listSeparator));
}

void CfgStore::print()
{
    m_root.print(QString());
}

CfgNode* CfgStore::find(const QString& key)
{
    return getNode(getNodeList(key));
}

void CfgStore::store(const QString& key, const QString& text)
{
    addNode(getNodeList(key))->setValue(encString(text));
}
