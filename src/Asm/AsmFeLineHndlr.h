#pragma once

#include <QString>
#include <QStringView>

namespace nsModAsmFe {

/// Cuts a source line into twelve tags, without understanding them:
/// `[white space] [label:] [white space] word [white space] arg0 [white space] [,] [white space] arg1 [white space] [;
/// comment]`.
class AsmFeLineHndlr
{
public:
    enum eTag_t {
        eTagSpacer0 = 0,
        eTagLabel = 1, ///< with its colon
        eTagSpacer2 = 2,
        eTagInstruction = 3, ///< the first word: a directive or a mnemonic
        eTagSpacer4 = 4,
        eTagArg0 = 5, ///< one word
        eTagSpacer6 = 6,
        eTagSep = 7, ///< a comma or nothing
        eTagSpacer8 = 8,
        eTagArg1 = 9, ///< all up to the comment, without white space at its end
        eTagSpacer10 = 10,
        eTagComment = 11, ///< from ";" to the end of the line, line end included
        eTagCount = 12,
    };

    /// Fills the tags. The line is shared, not copied.
    /// @return the whole line was consumed
    bool splitLine(const QString& line);

    QString tag(eTag_t tag) const { return tagView(tag).toString(); }
    /// The same without a copy; valid until the next line is split.
    QStringView tagView(eTag_t tag) const { return QStringView(m_line).mid(m_tags[tag].start, m_tags[tag].length); }
    /// The position of a tag in the line.
    int tagStart(eTag_t tag) const { return m_tags[tag].start; }
    bool isEmpty(eTag_t tag) const { return m_tags[tag].length == 0; }
    QString line() const { return m_line; }
    /// All tags in their order. White space after Arg1 is lost.
    QString mergeLine() const;
    /// Dumps the tags to standard output.
    void printTags() const;

    // The scanners: each takes a piece of the line from the position on, moves the position after it and returns the
    // piece.
    static QString splitLineSpacer(QString& line, int* pos, int length);
    static QString splitLineWord(QString& line, int* pos, int length);
    static QString splitLineList(QString& line, int* pos, int length);
    static QString splitLineLabel(QString& line, int* pos, int length);
    static QString splitLineSep(QString& line, int* pos, int length);
    static QString splitLineComment(QString& line, int* pos, int length);

private:
    struct sTag_t
    {
        int start = 0;
        int length = 0;
    };

    QString m_line;
    sTag_t m_tags[eTagCount];
};

} // namespace nsModAsmFe
