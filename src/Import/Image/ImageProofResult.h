#pragma once

#include "ProgramImage.h"

#include <QStringList>
#include <QVector>

namespace nsImport {

/// An address where two images differ.
struct ImageDifference
{
    int address = 0;
    bool hasOurs = false;
    bool hasReference = false;
    quint32 ours = 0;
    quint32 reference = 0;
    QString oursText;      ///< the word as an instruction; empty if it is none
    QString referenceText; ///< likewise
    ProgramImage::Place oursPlace;
    ProgramImage::Place referencePlace;

    /// For the user: the word, its instruction and its line, as "01234 LOAD s0, 52 (main.psm:12: LOAD s0, MAX)".
    QString oursSide() const;
    QString referenceSide() const;
};

/// What the comparison of an assembled program with a reference has found.
struct ImageProofResult
{
    bool equal = false;             ///< there is a word, and no difference
    int equalCount = 0;             ///< addresses where both have the same word
    int differenceCount = 0;        ///< addresses with different words, and those below
    int onlyOursCount = 0;          ///< differences: the reference has no word there
    int onlyReferenceCount = 0;     ///< differences: only the reference has a word, and it is not 0
    int filledCount = 0;            ///< the reference is filled up with zeros there, where the program has nothing
    QVector<ImageDifference> first; ///< the first differences in the order of their addresses

    /// For the user: "N words, all equal", or the differences; lines without line ends.
    QStringList report() const;
};

} // namespace nsImport
