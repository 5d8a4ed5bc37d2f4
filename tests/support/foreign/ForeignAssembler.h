#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

/// Assemblers for foreign dialects, written for the tests alone: what the original tool makes of a program, worked out
/// without any code of the importer or of the assembler. They are slow and plain. What the original leaves doubtful
/// they refuse, so that no test rests on a guess.
namespace foreign {

enum class Dialect { Kcpsm3, Kcpsm6, PBlazIde, Mico8Vendor, Mico8Gnu };

/// The moment of the assembler run, which a KCPSM6 program can read.
struct Stamp
{
    int hours = 14;
    int minutes = 5;
    int seconds = 38;
    int year = 14; ///< the last two digits
    int month = 3; ///< 1 to 12
    int day = 7;
};

struct Options
{
    int memorySize = 1024; ///< words; a jump for all unused words goes up to here
    Stamp stamp;
};

/// A line of the sources, in the order in which the original reads them: an included file stands where it is included.
struct Line
{
    QString file;   ///< absolute path
    int number = 0; ///< of the line in its file, from 1
    QString text;   ///< as in the file, without line end
};

/// What became of a line.
struct Row
{
    Line line;
    int address = 0;
    QVector<quint32> words;
};

struct Image
{
    QMap<int, quint32> words; ///< by address; an address without a word is missing
    QVector<Row> rows;
};

/// @param mainFile the source that the tool was started with
/// @param errors takes "file:line: text" for each fault; the image is of use only if there is none
Image assembleKcpsm3(const QString& mainFile, const Options& options, QStringList* errors);
Image assembleKcpsm6(const QString& mainFile, const Options& options, QStringList* errors);
Image assemblePBlazIde(const QString& mainFile, const Options& options, QStringList* errors);
Image assembleMico8Vendor(const QString& mainFile, const Options& options, QStringList* errors);
Image assembleMico8Gnu(const QString& mainFile, const Options& options, QStringList* errors);

/// The one of these for the dialect.
Image assemble(Dialect dialect, const QString& mainFile, const Options& options, QStringList* errors);

/// The image as a hex file: a line of five digits for each word of the memory, zero where the program has none.
QByteArray hexFile(const Image& image, int memorySize);

/// The image as the log that the KCPSM tools leave: the stamps of the run, then each line of the sources behind the
/// address and the word that it got. Further words of a line follow on lines of their own.
QByteArray logFile(const Image& image, const QString& mainFile, const Stamp& stamp);

/// "14:05:38"
QString timeText(const Stamp& stamp);

/// "07 Mar 2014"
QString dateText(const Stamp& stamp);

} // namespace foreign
