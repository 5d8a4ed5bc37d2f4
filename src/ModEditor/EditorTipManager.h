#pragma once

#include <QDialog>
#include <QHash>
#include <QString>

class QTextBrowser;

namespace nsModEditor {

/// A tip that describes a subroutine: what it does, what goes in and what comes out.
///
/// Nothing reads the descriptions of subroutines yet, so it holds a sample.
class EditorTipManager : public QDialog
{
    Q_OBJECT

public:
    explicit EditorTipManager(QWidget* parent = nullptr);

    /// Shows the tip for the word.
    /// @param parent becomes the dialog's parent; the owner of the dialog must give it another parent before this one
    /// is deleted
    /// @param pos in the coordinates of the parent's window
    void showTip(QWidget* parent, QPoint pos, QString& word);
    /// Composes the text of the tip. The word is not used yet.
    /// @return false if the template of the text cannot be read
    bool setTip(QString& word);
    /// A table under a heading, empty for no values.
    QString setTipArgs(QString title, QHash<QString, QString>& args);

private:
    QTextBrowser* m_browser = nullptr; ///< null before the first tip
    QString m_title;
    QString m_description;
    QHash<QString, QString> m_argsIn;
    QHash<QString, QString> m_argsOut;
};

} // namespace nsModEditor
