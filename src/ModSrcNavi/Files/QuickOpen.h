#pragma once

#include "NaviSymbol.h"

#include <QDialog>
#include <QVector>

#include <functional>

class QLineEdit;
class QListWidget;

namespace nsModSrcNavi {

/// A line to type into, and the files and symbols that fit it: Return goes to the chosen one, Esc leaves. Behind an `@`
/// there are symbols alone.
class QuickOpen : public QDialog
{
    Q_OBJECT

public:
    struct sTarget_t
    {
        QString name;          ///< what is typed for it
        QString detail;        ///< file and line of a symbol, or the folder of a file
        QString file;          ///< absolute
        int line = -1;         ///< counted from 0; -1: the file as a whole
        QString lineRef;       ///< text that finds the line again after edits
        bool isSymbol = false; ///< also in the list that holds no files
        NaviSymbol symbol;     ///< without a name: none of the program
    };
    static constexpr int maxRows = 200; ///< lines of the list

    /// @param targets in the order that they have for an empty line
    QuickOpen(QVector<sTarget_t> targets, QWidget* parent);

    /// What was chosen; with an empty file nothing was.
    sTarget_t chosen() const { return m_chosen; }
    /// Takes files off the list, not their symbols. What the user has chosen in it stays chosen.
    void leaveOut(const std::function<bool(const QString& file)>& isMissing);

public slots:
    void accept() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill();

    QVector<sTarget_t> m_targets;
    QVector<int> m_rows; ///< targets in the list
    QLineEdit* m_edit;
    QListWidget* m_list;
    sTarget_t m_chosen;
};

} // namespace nsModSrcNavi
