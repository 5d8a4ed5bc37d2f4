#pragma once

#include <QStringList>

namespace nsModPrj {

/// The projects that the user has opened last, the latest first. A file that has gone stays listed until the user
/// removes it: it may be on a disk that is not there now.
class RecentProjects
{
public:
    static constexpr int maxCount = 10;

    /// Takes a stored list; what can not be the path of a file is left out.
    void setFiles(const QStringList& stored);
    QStringList files() const { return m_files; }
    /// @param file absolute path
    void add(const QString& file);
    void remove(const QString& file);

private:
    QStringList m_files;
};

} // namespace nsModPrj
