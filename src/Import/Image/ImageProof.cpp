#include "ImageProof.h"

#include "ProcTable.h"

#include <algorithm>
#include <limits>

namespace nsImport {

namespace {

QString hex(quint32 value, int digits)
{
    return QString::number(value, 16).toUpper().rightJustified(digits, '0');
}

QString sideText(bool hasWord, quint32 word, const QString& instruction, const ProgramImage::Place& place)
{
    if (!hasWord)
        return QStringLiteral("nothing");
    QString text = hex(word, 5) + ' ' + (instruction.isEmpty() ? QStringLiteral("no instruction") : instruction);
    if (place.line <= 0)
        return text;
    text += QStringLiteral(" (") + place.file + ':' + QString::number(place.line);
    return text + (place.text.isEmpty() ? QString() : QStringLiteral(": ") + place.text.simplified()) + ')';
}

QString words(int count)
{
    return count == 1 ? QStringLiteral("1 word") : QStringLiteral("%1 words").arg(count);
}

} // namespace

QString ImageDifference::oursSide() const
{
    return sideText(hasOurs, ours, oursText, oursPlace);
}

QString ImageDifference::referenceSide() const
{
    return sideText(hasReference, reference, referenceText, referencePlace);
}

QStringList ImageProofResult::report() const
{
    QStringList lines;
    if (equal) {
        lines.append(words(equalCount) + QStringLiteral(", all equal"));
    } else if (differenceCount == 0) {
        lines.append(QStringLiteral("Nothing was compared: the program and the reference have no word in common"));
    } else {
        lines.append(QStringLiteral("%1 %2, %3 equal")
                         .arg(words(differenceCount),
                              differenceCount == 1 ? QStringLiteral("differs") : QStringLiteral("differ"),
                              words(equalCount)));
    }
    if (onlyOursCount > 0)
        lines.append(QStringLiteral("The reference lacks %1 of the program").arg(words(onlyOursCount)));
    if (onlyReferenceCount > 0)
        lines.append(QStringLiteral("The program lacks %1 of the reference").arg(words(onlyReferenceCount)));
    if (filledCount > 0)
        lines.append(
            QStringLiteral("The reference has zeros in %1 where the program has nothing, which is the same memory")
                .arg(words(filledCount)));
    for (const ImageDifference& difference : first) {
        lines.append(
            QStringLiteral("%1: program   %2").arg(hex(quint32(difference.address), 3), difference.oursSide()));
        lines.append(
            QStringLiteral("%1: reference %2").arg(hex(quint32(difference.address), 3), difference.referenceSide()));
    }
    if (first.size() < differenceCount)
        lines.append(QStringLiteral("... and %1 more").arg(differenceCount - first.size()));
    return lines;
}

ImageProof::ImageProof(const nsProc::ProcTable& table, int maxShown)
    : m_disassembler(table)
    , m_maxShown(maxShown)
{
}

QString ImageProof::instruction(int address, quint32 word) const
{
    if (word > quint32(std::numeric_limits<int>::max()))
        return QString();
    return m_disassembler.text(int(word), address, [](int target) {
        return target < 0 ? QString::number(target) : QStringLiteral("0x") + hex(quint32(target), 3);
    });
}

ImageProofResult ImageProof::compare(const ProgramImage& ours, const ProgramImage& reference) const
{
    ImageProofResult result;
    const int end = std::max(ours.size(), reference.size());
    for (int address = 0; address < end; ++address) {
        ImageDifference difference;
        difference.hasOurs = ours.contains(address);
        difference.hasReference = reference.contains(address);
        if (!difference.hasOurs && !difference.hasReference)
            continue;
        difference.ours = ours.word(address);
        difference.reference = reference.word(address);
        if (difference.hasOurs && difference.hasReference && difference.ours == difference.reference) {
            ++result.equalCount;
            continue;
        }
        // Memories hold zeros where a program has no word.
        if (!difference.hasOurs && difference.reference == 0) {
            ++result.filledCount;
            continue;
        }
        ++result.differenceCount;
        result.onlyOursCount += difference.hasReference ? 0 : 1;
        result.onlyReferenceCount += difference.hasOurs ? 0 : 1;
        if (result.first.size() >= m_maxShown)
            continue;
        difference.address = address;
        difference.oursText = difference.hasOurs ? instruction(address, difference.ours) : QString();
        difference.referenceText = difference.hasReference ? instruction(address, difference.reference) : QString();
        difference.oursPlace = ours.place(address);
        difference.referencePlace = reference.place(address);
        result.first.append(difference);
    }
    result.equal = result.equalCount > 0 && result.differenceCount == 0;
    return result;
}

} // namespace nsImport
