#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

class CfgStore;

namespace nsModPrj {

/// The project file: a configuration tree as XML, one element a node.
///
/// A node without children is an element with the node's escaped value and without attributes; a node with children is
/// an element with the node's attributes and without its value. The class does not interpret the nodes.
class PrjFile
{
    Q_DECLARE_TR_FUNCTIONS(nsModPrj::PrjFile)

public:
    static constexpr qint64 maxBytes = 32 * 1024 * 1024; ///< largest size of a file that is read or written
    static constexpr int maxNodes = 500000;              ///< number of elements and attributes
    static constexpr int maxDepth = 1000;                ///< levels of elements below the root
    static constexpr int maxAttributes = 1000;           ///< attributes of one element

    /// Reads a file and appends its nodes to those that the tree already has.
    /// @param error the message for the user, when the result is false; the tree then holds what came before the error
    static bool read(CfgStore* tree, const QString& path, QString* error);

    /// Writes the tree through SafeFile: the file always holds the complete old or the complete new text.
    /// @param dropped keys of nodes that the format can not carry and that were left out, may be null
    /// @param error the message for the user, when the result is false; the old file is then untouched
    /// @param reason error text of the system, if there is one; may be null
    static bool write(CfgStore* tree, const QString& path, QStringList* dropped, QString* error,
                      QString* reason = nullptr);

    /// The text of the file for a tree; empty when the tree has more than maxNodes.
    /// @param dropped as in write()
    static QByteArray format(CfgStore* tree, QStringList* dropped);

    /// Reads a text into the tree.
    /// @return false: the text is no well-formed XML, or it is beyond the limits above
    static bool parse(CfgStore* tree, const QByteArray& text);

    /// The escaping of values that the format adds to that of XML.
    static QString escape(QString value);
    static QString unescape(QString text);
};

} // namespace nsModPrj
