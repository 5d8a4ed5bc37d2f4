#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace nsModPrj {

/// The recent files of the desktop: the list that file dialogs and starters of other programs show. It belongs to all
/// programs of the user, so whatever it holds stays as it is, byte for byte, and what can not be read as such a list is
/// left alone.
class DesktopRecents
{
public:
    static constexpr int maxBytes = 16 * 1024 * 1024; ///< a larger list is left alone

    /// The list of the user.
    static QString listFile();

    /// Puts a project that was opened into the list.
    ///
    /// Nothing is written without a display, where no desktop is; nor if the list is no regular file that the user can
    /// write, which is how a user without such a list has it; nor if another program holds its lock.
    /// @param project absolute path
    /// @return true if the list has it now
    static bool add(const QString& project);

    /// For tests: add() writes without a display, too.
    static void setEverywhere(bool on) { s_everywhere = on; }

    /// As add(), for any list, with or without a display.
    static bool addTo(const QString& list, const QString& project, const QDateTime& now);

    /// The list with the project in it: a new entry at the end, or the entry that it has with new times.
    /// @param list empty: a new list
    /// @return null if the list is none that can be extended
    static QByteArray added(const QByteArray& list, const QString& project, const QDateTime& now);

private:
    static bool s_everywhere;
};

} // namespace nsModPrj
