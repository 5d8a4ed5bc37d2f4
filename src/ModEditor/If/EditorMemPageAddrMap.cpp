#include "EditorMemPageAddrMap.h"

#include <QtDebug>

namespace nsModEditor {

EditorMemPageAddrMap::EditorMemPageAddrMap(QStringList* files)
    : m_files(*files)
    , m_fileMaps(files->size())
{
}

EditorMemPageAddrMap::~EditorMemPageAddrMap()
{
    for (const sFile_t& file : qAsConst(m_fileMaps)) {
        sItem_t* item = file.first;
        while (item != nullptr) {
            sItem_t* next = item->next;
            delete item;
            item = next;
        }
    }
}

bool EditorMemPageAddrMap::addItem(int fileNo, int lineNo, int memPageAddr)
{
    if (fileNo < 0 || fileNo >= m_fileMaps.size())
        return false;
    auto* item = new sItem_t{lineNo, memPageAddr, nullptr};
    sFile_t& file = m_fileMaps[fileNo];
    if (file.last == nullptr)
        file.first = item;
    else
        file.last->next = item;
    file.last = item;
    return true;
}

EditorMemPageAddrMap::sItem_t* EditorMemPageAddrMap::map(QString path)
{
    const int fileNo = m_files.indexOf(path);
    return fileNo < 0 ? nullptr : m_fileMaps.at(fileNo).first;
}

void EditorMemPageAddrMap::print()
{
    if (m_fileMaps.isEmpty()) {
        qDebug("memPageAddrMap is empty");
        return;
    }
    for (int fileNo = 0; fileNo < m_fileMaps.size(); ++fileNo) {
        qDebug("memPageAddrMap for file %d: %s", fileNo, qPrintable(m_files.at(fileNo)));
        for (const sItem_t* item = m_fileMaps.at(fileNo).first; item != nullptr; item = item->next)
            qDebug("\tmapValue: fileNo = %03d, lineNo = %05d, memPageAddr = %04x", fileNo, item->lineNo,
                   unsigned(item->memPageAddr));
    }
}

} // namespace nsModEditor
