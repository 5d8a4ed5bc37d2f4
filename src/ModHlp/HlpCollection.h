#pragma once

#include <QString>

#include <memory>

class QHelpEngine;

namespace nsModHlp {

/// The collection of help pages that ships with the program.
///
/// The help engine writes into its files, and the shipped ones may belong to somebody else: so it works on a copy in
/// the user's cache, which is made anew when the shipped files have changed.
class HlpCollection
{
public:
    HlpCollection();
    ~HlpCollection();

    /// The collection of a program: the first that exists of the places where one may lie.
    /// @param programDir folder of the program file
    /// @return absolute path; empty if there is none
    static QString find(const QString& programDir);

    /// Opens a collection. @return false: it is missing, damaged or none; there is an engine then, too, which has no
    /// pages
    bool open(const QString& file);
    /// Deletes the engine. The widgets that show its lists are deleted after it.
    void close();
    /// Null before open() and after close().
    QHelpEngine* engine() const { return m_engine.get(); }

private:
    static QString workingCopy(const QString& file);
    bool openCopy(const QString& copy);

    std::unique_ptr<QHelpEngine> m_engine;
};

} // namespace nsModHlp
