#pragma once

#include "CfgNode.h"

#include <QDate>
#include <QObject>
#include <QString>
#include <QStringList>

/// Strings under slash-separated keys such as "ModGui/width", with typed access: the form in memory of the application
/// settings and of the project file. The tree does not access files.
///
/// A key is split at "/" without its empty parts and with its case kept: "a//b/" is "a/b", and "" and "/" are the root.
/// A getter never creates a node and answers its second argument when the key's node does not exist; a setter creates
/// what is missing. Nothing here fails: a malformed number reads as 0.
class CfgStore : public QObject
{
    Q_OBJECT

public:
    explicit CfgStore(QObject* parent = nullptr);

    /// Empties the tree, the root's attributes and name included.
    void clear();

    /// The place where values would be encoded; at present it returns the text unchanged.
    QString encString(QString text) const;
    QString decString(QString text) const;

    /// The components of a key.
    QStringList getNodeList(const QString& key) const;
    /// Walks from the root and creates what is missing; an empty path is the root.
    CfgNode* addNode(QStringList path);
    /// Walks from the root; null when a component is missing; an empty path is the root.
    CfgNode* getNode(QStringList path);

    bool hasNode(QString key);
    /// Deletes the node with its subtree. An unknown key does nothing, nor does the key of the root, which cannot be
    /// removed.
    void removeNode(QString key);

    /// The node's attribute "version" as a decimal number; -1 when the node does not exist or has none.
    int version(QString key);
    void setVersion(QString key, const int& version);

    QString value(QString key, QString dflt);
    int value(QString key, int dflt);
    QDate value(QString key, QDate dflt);
    /// Empty elements of a list that was stored do not come back.
    QStringList value(QString key, QStringList dflt);

    void setValue(QString key, QString value);
    void setValue(QString key, int value);
    void setValue(QString key, QDate value);
    void setValue(QString key, QStringList value);

    /// Prints the tree to the debug output.
    void print();

private:
    CfgNode* find(const QString& key);
    void store(const QString& key, const QString& text);

    CfgNode m_root;
};
