#pragma once

#include <QCoreApplication>
#include <QString>

/// Asks the user whether something that a project brings along may happen on this machine.
class ConsentQuestion
{
    Q_DECLARE_TR_FUNCTIONS(ConsentQuestion)

public:
    enum eAnswer_t {
        answerNo,
        answerYes,
        answerNobody ///< nobody can be asked: no for this time, which is nobody's answer to keep
    };

    /// Shows the question in front of the window and waits for the answer. Enter, Esc and a window that is deleted
    /// under the question answer "No". All texts are plain. A program that is unattended, or has no windows, does not
    /// wait; it reports the act on standard error.
    /// @param text what is asked
    /// @param act what would happen, in full; shown as it is, to be read, scrolled and copied
    /// @param helpPage page of the help about what is asked
    static eAnswer_t ask(const QString& title, const QString& text, const QString& act, const QString& helpPage);

    /// Is there nobody to ask?
    static bool isUnattended();

    /// A line as it can be shown to who has to judge it: characters that would hide, move or break what stands beside
    /// them are shown by their numbers.
    static QString readable(const QString& line);
};
