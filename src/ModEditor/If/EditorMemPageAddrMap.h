#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace nsModEditor {

/// Address in its memory page of every source line that produces code, as one list per file.
class EditorMemPageAddrMap
{
public:
    /// One line; the entries of a file form a list in the order of the code.
    struct sItem_t
    {
        int lineNo = 0; ///< counted from 0
        int memPageAddr = 0;
        sItem_t* next = nullptr;
    };

    /// @param files absolute paths; the index is the file number
    explicit EditorMemPageAddrMap(QStringList* files);
    ~EditorMemPageAddrMap();
    EditorMemPageAddrMap(const EditorMemPageAddrMap&) = delete;
    EditorMemPageAddrMap& operator=(const EditorMemPageAddrMap&) = delete;

    /// @return false for a file number out of range; nothing is added then
    bool addItem(int fileNo, int lineNo, int memPageAddr);
    /// First entry of the file, null if it is unknown or has none. Owned by the map.
    sItem_t* map(QString path);
    /// Dumps the map to the debug output.
    void print();

    /// Cleared when a document has gained or lost lines since the run.
    bool valid = true;

private:
    struct sFile_t
    {
        sItem_t* first = nullptr;
        sItem_t* last = nullptr;
    };

    QStringList m_files;
    QVector<sFile_t> m_fileMaps;
};

} // namespace nsModEditor
