#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace nsModEditor {

/// What a file held when a document was last read from it or written to it, to find out what others have done since.
class DocumentOnDisk
{
public:
    enum eState_t
    {
        eStateSame = 0,
        eStateChanged = 1,
        eStateGone = 2,
        eStateNoFile = 3 ///< a folder or device stands there, nothing that a document could be read from
    };

    /// No file yet.
    DocumentOnDisk() = default;
    /// @param bytes what was read or written just now
    DocumentOnDisk(const QString& path, const QByteArray& bytes);

    /// Whether the document has come from a file, or gone to one.
    bool isKnown() const { return m_known; }
    /// By the content. Where no file was known, one that is there has changed, and one that is not is the same.
    /// @param bytes set to the present content when it has changed; null when it can not be read
    eState_t state(const QString& path, QByteArray* bytes) const;
    /// By size and time stamps alone: a quick answer, which may be wrong right after another change.
    bool looksSame(const QString& path) const;

    /// Whether both paths lead to one file, over links and in any spelling. Files that do not exist are compared by
    /// name.
    static bool isSameFile(const QString& first, const QString& second);

private:
    bool m_known = false;
    QByteArray m_hash;
    qint64 m_size = 0;
    QDateTime m_modified;
    QDateTime m_changed; ///< of owner, rights, links or content
};

} // namespace nsModEditor
