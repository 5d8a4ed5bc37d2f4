#include "SourceSearch.h"

#include "DocumentFormat.h"
#include "DocumentOnDisk.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>

namespace nsModEditor {

namespace {

const int sliceTime = 15;        ///< milliseconds
const int pieceLength = 1 << 15; ///< characters that are searched at once
const int timeOfLine = 100;      ///< milliseconds that a line may take

/// The text of most files: it is the same in all encodings, with one line feed at the end of a line.
bool isPlainText(const QByteArray& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<signed char>(c) > 0 && c != '\r'; });
}

/// What these look at may lie in the lines around.
bool looksAround(const QString& pattern)
{
    for (const char* part : {"\\A", "\\Z", "\\z", "\\G", "\\K", "(?", "(*", "\\R", "\\N"}) {
        if (pattern.contains(QLatin1String(part)))
            return true;
    }
    return false;
}

} // namespace

SourceSearch::SourceSearch(QObject* parent)
    : QObject(parent)
    , m_timer(new QTimer(this))
    , m_search(sSearch_t())
{
    m_timer->setInterval(0);
    connect(m_timer, &QTimer::timeout, this, &SourceSearch::runSlice);
}

bool SourceSearch::isRunning() const
{
    return m_timer->isActive();
}

void SourceSearch::start(const TextSearch& search, const QList<sSource_t>& sources)
{
    m_search = search;
    m_lineByLine = search.isRegExp() && looksAround(search.text());
    m_lines = search.forLines(pieceLength);
    m_sources = sources;
    m_source = 0;
    m_isInSource = false;
    m_hits = 0;
    m_leftOut = 0;
    m_timer->start();
}

void SourceSearch::stop()
{
    if (isRunning())
        finish(false);
}

void SourceSearch::finish(bool complete)
{
    m_timer->stop();
    m_sources.clear();
    m_text.clear();
    m_found.clear();
    emit finished(complete);
}

void SourceSearch::runSlice()
{
    QElapsedTimer time;
    time.start();
    // A slot can stop the search.
    while (isRunning() && time.elapsed() < sliceTime) {
        if (m_source >= m_sources.size()) {
            finish(true);
        } else if (!m_isInSource) {
            if (!beginSource())
                ++m_source;
        } else if (m_pos >= m_text.size()) {
            endSource();
        } else {
            searchPiece();
            if (m_hits >= maxHits) {
                endSource();
                finish(false);
            }
        }
    }
}

bool SourceSearch::beginSource()
{
    const sSource_t source = m_sources.at(m_source);
    m_pos = 0;
    m_line = 0;
    m_found.clear();
    m_text = source.text;
    if (!source.isOpen) {
        QFile file(source.path);
        const QFileInfo info(source.path);
        if (!info.isFile() || info.size() > DocumentOnDisk::maxFileSize || !file.open(QIODevice::ReadOnly)) {
            emit failed(source.path, !info.exists()   ? tr("the file does not exist")
                                     : !info.isFile() ? tr("it is no file")
                                     : file.isOpen() || file.error() == QFileDevice::NoError
                                         ? tr("the file is too large")
                                         : file.errorString());
            return false;
        }
        const QByteArray bytes = file.readAll();
        if (isPlainText(bytes))
            m_text = QString::fromLatin1(bytes);
        else
            DocumentFormat::decode(bytes, &m_text);
    }
    m_isInSource = true;
    return true;
}

void SourceSearch::endSource()
{
    const QString path = m_sources.at(m_source).path;
    m_isInSource = false;
    ++m_source;
    m_text.clear();
    if (!m_found.isEmpty())
        emit found(path, m_found);
}

/// Searches some lines from the present position on.
void SourceSearch::searchPiece()
{
    int end = m_text.indexOf('\n', qMin(m_pos + pieceLength, m_text.size()));
    end = end < 0 ? m_text.size() : end + 1;
    const QString piece = m_text.mid(m_pos, end - m_pos);
    int at = 0;
    int counted = 0;
    while (at < piece.size() && m_hits < maxHits) {
        int hit = at;
        if (!m_lineByLine) {
            const QRegularExpressionMatch match = m_lines.match(piece, at);
            if (match.isValid() && !match.hasMatch())
                break;
            // An expression that takes too long for the piece may do for a line.
            hit = match.hasMatch() ? match.capturedStart() : at;
        }
        const int start = hit == 0 ? 0 : piece.lastIndexOf('\n', hit - 1) + 1;
        int lineEnd = piece.indexOf('\n', hit);
        lineEnd = lineEnd < 0 ? piece.size() : lineEnd;
        m_line += piece.midRef(counted, start - counted).count('\n');
        counted = start;
        addLine(m_pos + start, m_pos + lineEnd);
        at = lineEnd + 1;
    }
    m_line += piece.midRef(counted).count('\n');
    m_pos = end;
}

/// Takes the hits of the line with the present number.
void SourceSearch::addLine(int start, int end)
{
    sFoundLine_t line;
    line.line = m_line;
    line.text = m_text.mid(start, end - start);
    SearchTime time(timeOfLine);
    line.hits = m_search.hitsIn(line.text, &time);
    m_leftOut += time.isComplete() ? 0 : 1;
    if (line.hits.isEmpty())
        return;
    m_hits += line.hits.size();
    m_found.append(line);
}

} // namespace nsModEditor
