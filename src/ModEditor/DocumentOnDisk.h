#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace nsModEditor {

/// The content of a file when a document was last read from it or written to it, to detect changes by others.
class DocumentOnDisk
{
public:
    enum eState_t {
        eStateSame = 0,
        eStateChanged = 1,
        eStateGone = 2,
        eStateNoFile = 3 ///< there is a folder or a device, which a document can not be read from
    };

    /// Largest file that is opened, in bytes.
    static const qint64 maxFileSize = qint64(64) * 1024 * 1024;

    /// No file yet.
    DocumentOnDisk() = default;
    /// @param bytes what was read or written just now
    DocumentOnDisk(const QString& path, const QByteArray& bytes);

    /// True if the document was read from a file or written to one.
    bool isKnown() const { return m_known; }
    /// Compares the content. If no file was known, an existing file counts as changed, and a missing one as unchanged.
    /// @param bytes set to the present content when it has changed; null when it can not be read
    eState_t state(const QString& path, QByteArray* bytes) const;
    /// Compares size and time stamps only, which is fast but may miss a change right after another one.
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
