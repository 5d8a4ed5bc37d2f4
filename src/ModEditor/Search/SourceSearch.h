#pragma once

#include "TextSearch.h"

#include <QObject>
#include <QStringList>

class QTimer;

namespace nsModEditor {

/// A line with hits, as it was when it was searched.
struct sFoundLine_t
{
    int line = 0; ///< counted from 0
    QString text;
    QVector<sHit_t> hits;
};

/// Searches the lines of many sources, a slice between two turns of the event loop, so that the user can go on and stop
/// it.
class SourceSearch : public QObject
{
    Q_OBJECT

public:
    static constexpr int maxHits = 10000; ///< after so many the search ends

    struct sSource_t
    {
        QString path;
        bool isOpen = false; ///< the text is that of a document, and not of the file
        QString text;
    };

    explicit SourceSearch(QObject* parent = nullptr);

    /// Begins a search; one that is running ends without a signal.
    void start(const TextSearch& search, const QList<sSource_t>& sources);
    /// Ends the search.
    void stop();
    bool isRunning() const;
    int hits() const { return m_hits; }
    /// Lines that were left out, in part at least, as the expression takes long there.
    int leftOut() const { return m_leftOut; }

signals:
    /// All hits of a source that has some, in the order of the sources.
    void found(const QString& path, const QVector<nsModEditor::sFoundLine_t>& lines);
    /// A source that can not be searched.
    void failed(const QString& path, const QString& reason);
    /// @param complete all sources were searched to their end
    void finished(bool complete);

private:
    void runSlice();
    bool beginSource();
    void searchPiece();
    void endSource();
    void addLine(int start, int end);
    void finish(bool complete);

    QTimer* m_timer;
    TextSearch m_search;
    QRegularExpression m_lines; ///< the same for several lines at once
    bool m_lineByLine = false;  ///< the expression may look at what is around a line
    QList<sSource_t> m_sources;
    int m_source = 0; ///< the one that is searched
    bool m_isInSource = false;
    QString m_text;                ///< of it
    int m_pos = 0;                 ///< start of the line that comes next
    int m_line = 0;                ///< its number
    QVector<sFoundLine_t> m_found; ///< in it
    int m_hits = 0;
    int m_leftOut = 0;
};

} // namespace nsModEditor
