#pragma once

#include <QObject>

class QCompleter;
class QPlainTextEdit;
class QStringListModel;

namespace nsModEditor {

/// The list of words that complete what is typed in a document.
class TextCompletion : public QObject
{
    Q_OBJECT

public:
    /// @param edit owns the object
    explicit TextCompletion(QPlainTextEdit* edit);

    /// @param words not owned
    void setWords(QStringListModel* words);
    /// Kept for the settings; without an effect so far, as is the next one.
    void setEnabled(bool enabled) { m_isEnabled = enabled; }
    /// @param length characters
    void setPrefixLength(int length) { m_prefixLength = length; }
    /// @param count entries that the list shows at a time
    void setItemCount(int count);

private slots:
    void insert(const QString& completion);

private:
    QPlainTextEdit* m_edit;
    QCompleter* m_completer;
    bool m_isEnabled = false;
    int m_prefixLength = 3;
};

} // namespace nsModEditor
