#pragma once

#include <QList>

namespace nsModSrcNavi {

struct NaviTag;

/// The tags of the last run of the assembler, in the order in which it read them.
class NaviTagList
{
public:
    NaviTagList() = default;
    NaviTagList(const NaviTagList&) = delete;
    NaviTagList& operator=(const NaviTagList&) = delete;
    ~NaviTagList();

    /// Appends a tag and takes its ownership; null is ignored.
    void addTag(NaviTag* tag);
    /// Deletes all tags. Views must drop their pointers before.
    void clear();

    /// A copy of the list in document order; the tags stay in the ownership of this object. The same applies to the
    /// next two.
    QList<NaviTag*> tagListDocument() const;
    /// Sorted by title, without regard to case. Tags with equal titles come in no particular order.
    QList<NaviTag*> tagListAsc() const;
    QList<NaviTag*> tagListDesc() const;

private:
    static bool checkTagOrderAsc(const NaviTag* left, const NaviTag* right);
    static bool checkTagOrderDesc(const NaviTag* left, const NaviTag* right);

    QList<NaviTag*> m_tags;
};

} // namespace nsModSrcNavi
