#pragma once

#include <QCoreApplication>
#include <QString>

/// Asks the user whether something that a project brings along may happen on this machine.
class ConsentQuestion
{
    Q_DECLARE_TR_FUNCTIONS(ConsentQuestion)

public:
    /// Shows the question in front of the window and waits for the answer. Enter, Esc and a window that is deleted
    /// under the question answer "No", and so does a program without a window. All texts are plain.
    /// @param text what is asked
    /// @param act what would happen, in full; shown as it is, to be read, scrolled and copied
    static bool ask(const QString& title, const QString& text, const QString& act);
};
