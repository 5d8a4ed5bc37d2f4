#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace nsNalvoAsm {

/// The entries of the messages in the help, as the text that is built with the help's collection.
class AsmExplain
{
public:
    /// Reads the first messages.txt that is found from the folder of the program.
    /// @param programDir of the program file itself, not of a link to it
    /// @return false: errorText() says why
    bool read(const QString& programDir);
    QString errorText() const { return m_error; }

    /// What the help says about a message. Entries of several pages that say the same come once.
    /// @param name key of the message, or its text where it has none; in any case
    /// @return empty if there is no such message
    QByteArray explanation(const QString& name) const;
    /// The keys that come near a name, the nearest first.
    QStringList similarKeys(const QString& name) const;

private:
    /// What a page says about a message.
    struct Entry
    {
        QString key;
        QString page; ///< its title
        QString heading;
        QByteArray body;
    };

    void parse(const QByteArray& text);

    QVector<Entry> m_entries;
    QString m_error;
};

} // namespace nsNalvoAsm
