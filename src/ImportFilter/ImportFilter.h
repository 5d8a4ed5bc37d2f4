#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>

namespace nsModImport {

class ImportFilterIf;

/// The import filters that there are: one a filter file, known by its name.
class ImportFilter : public QObject
{
    Q_OBJECT

public:
    /// Reads the filters that ship with the running program.
    explicit ImportFilter(QObject* parent = nullptr);
    /// Reads the filters of a folder. @param dir empty for none
    explicit ImportFilter(const QString& dir, QObject* parent = nullptr);

    /// In alphabetical order.
    QStringList filterNames() const;
    /// Null if there is none of this name. Owned by the list.
    ImportFilterIf* filter(const QString& name) const;

    /// The filter folder of a program: the first that exists of the places where one may lie.
    /// @param programDir folder of the program file
    /// @return absolute path; empty if there is none
    static QString filterDir(const QString& programDir);
    /// All files below the folder, as sorted paths.
    static QStringList scanDirectory(const QString& dir);

private:
    void initFilterList(const QString& dir);
    void setupFilterIf(const QString& path);

    QHash<QString, ImportFilterIf*> filters; ///< children of this object
};

} // namespace nsModImport
