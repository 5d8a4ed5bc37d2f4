#pragma once

#include "SourceSearch.h"

#include <QSet>
#include <QWidget>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace nsModEditor {

/// A hit that the user sees in the list.
struct sListedHit_t
{
    QString path;
    int line = 0; ///< counted from 0
    QString text; ///< of the line
    sHit_t hit;
};

/// The panel of the search in all sources: what to find, what to put in its place, and the hits by file, each with what
/// its line would become. It searches and replaces nothing itself.
class SourceSearchPanel : public QWidget
{
    Q_OBJECT

public:
    explicit SourceSearchPanel(QWidget* parent = nullptr);

    sSearch_t search() const;
    QString replacement() const;
    /// Moves the focus to the text to find. @param text new text to find; empty keeps the present one
    void begin(const QString& text);

    void clear();
    /// Appends the hits of a source. @param name the path as it is shown
    void addSource(const QString& path, const QString& name, const QVector<sFoundLine_t>& lines);
    void setRunning(bool running);
    void setStatus(const QString& text);
    /// The search that the list comes from.
    void setListed(const sSearch_t& search);
    /// The ticked hits, in the order of the list.
    QVector<sListedHit_t> tickedHits() const;

signals:
    void findRequest();
    void stopRequest();
    void replaceRequest();
    void activated(const nsModEditor::sListedHit_t& hit);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addFields(QGridLayout* layout);
    void addList(QGridLayout* layout);
    QCheckBox* addCheckBox(const char* name, const QString& text, const QString& toolTip);
    void showAllPreviews();
    void showPreviews(QTreeWidgetItem* source);
    void noteTick(QTreeWidgetItem* item);
    void updateButtons();
    void activate(QTreeWidgetItem* item);

    QLineEdit* m_find = nullptr;
    QLineEdit* m_replace = nullptr;
    QCheckBox* m_caseSensitive = nullptr;
    QCheckBox* m_wholeWords = nullptr;
    QCheckBox* m_regExp = nullptr;
    QPushButton* m_findButton = nullptr;
    QPushButton* m_replaceButton = nullptr;
    QTreeWidget* m_list = nullptr;
    QLabel* m_status = nullptr;
    QVector<sListedHit_t> m_hits; ///< by the number that an entry carries
    QSet<int> m_unticked;         ///< their numbers
    sSearch_t m_listed;
    bool m_running = false;
};

} // namespace nsModEditor
