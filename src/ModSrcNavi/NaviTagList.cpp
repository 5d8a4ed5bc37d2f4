#include "NaviTagList.h"

#include "NaviTag.h"

#include <algorithm>

namespace nsModSrcNavi {

NaviTagList::~NaviTagList()
{
    clear();
}

void NaviTagList::addTag(NaviTag* tag)
{
    if (tag != nullptr)
        m_tags.append(tag);
}

void NaviTagList::clear()
{
    qDeleteAll(m_tags);
    m_tags.clear();
}

QList<NaviTag*> NaviTagList::tagListDocument() const
{
    return m_tags;
}

QList<NaviTag*> NaviTagList::tagListAsc() const
{
    QList<NaviTag*> sorted = m_tags;
    std::sort(sorted.begin(), sorted.end(), checkTagOrderAsc);
    return sorted;
}

QList<NaviTag*> NaviTagList::tagListDesc() const
{
    QList<NaviTag*> sorted = m_tags;
    std::sort(sorted.begin(), sorted.end(), checkTagOrderDesc);
    return sorted;
}

bool NaviTagList::checkTagOrderAsc(const NaviTag* left, const NaviTag* right)
{
    return left->title.toLower() < right->title.toLower();
}

bool NaviTagList::checkTagOrderDesc(const NaviTag* left, const NaviTag* right)
{
    return right->title.toLower() < left->title.toLower();
}

} // namespace nsModSrcNavi
