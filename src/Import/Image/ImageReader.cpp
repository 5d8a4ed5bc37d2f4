#include "ImageReader.h"

#include "ImageBuilder.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace nsImport {

namespace {

/// A row for each kind of file that is told by its content alone, in the order in which they are tried.
struct sFormat_t
{
    eImageFormat_t format;
    const char* name;
    bool (*read)(const QByteArray& content, ImageBuilder* image);
};

const sFormat_t formats[] = {
    {imageHex, "hexadecimal words", readWordFile},
    {imageMem, "mem file", readWordFile},
    {imageCoe, "coe file", readCoe},
    {imageMif, "mif file", readMif},
    {imageHdl, "VHDL or Verilog with INIT strings", readHdl},
    {imageIntelHex, "Intel hex", readIntelHex},
    {imageListing, "listing", readListing},
    {imageLatticeMem, "Lattice mem file", readLatticeMem},
};

const sFormat_t* formatRow(eImageFormat_t format)
{
    const auto row = std::find_if(std::begin(formats), std::end(formats),
                                  [format](const sFormat_t& candidate) { return candidate.format == format; });
    return row != std::end(formats) ? row : nullptr;
}

/// The text without what some tools put around it: a byte order mark, and the end marks of old systems.
QByteArray withoutMarks(const QByteArray& content)
{
    int start = content.startsWith("\xef\xbb\xbf") ? 3 : 0;
    int end = content.size();
    while (end > start && (content.at(end - 1) == 0x1a || isBlank(content.at(end - 1))))
        --end;
    // The last line end stays: it can tell who has written the file.
    while (end > start && end < content.size() && isBlank(content.at(end)))
        ++end;
    return content.mid(start, end - start);
}

const int maxLineLength = 1 << 20;

bool hasLongLine(const QByteArray& content)
{
    LineCursor cursor(content);
    while (cursor.next()) {
        if (cursor.line().size() > maxLineLength)
            return true;
    }
    return false;
}

/// First characters of the first line that has any.
QByteArray firstWords(const QByteArray& content)
{
    int pos = 0;
    while (pos < content.size() && isBlank(content.at(pos)))
        ++pos;
    return content.mid(pos, 16);
}

/// Does a word stand in the text with one of these characters behind it?
bool hasWordBefore(const QByteArray& upper, const char* word, const char* next)
{
    const int length = int(qstrlen(word));
    for (int pos = upper.indexOf(word); pos >= 0; pos = upper.indexOf(word, pos + 1)) {
        int end = pos + length;
        while (end < upper.size() && isBlank(upper.at(end)))
            ++end;
        if (end < upper.size() && std::strchr(next, upper.at(end)) != nullptr)
            return true;
    }
    return false;
}

/// `INIT_` with two hexadecimal digits, and a value.
bool hasInitStrings(const QByteArray& upper)
{
    for (int pos = upper.indexOf("INIT_"); pos >= 0; pos = upper.indexOf("INIT_", pos + 1)) {
        const QByteArray index = upper.mid(pos + 5, 2);
        if (index.size() < 2 || !isHexDigit(index.at(0)) || !isHexDigit(index.at(1)))
            continue;
        const QByteArray rest = upper.mid(pos + 7, 8).trimmed();
        if (rest.startsWith('=') || rest.startsWith('(') || rest.startsWith("OF "))
            return true;
    }
    return false;
}

bool hasLatticeHeader(const QByteArray& upper)
{
    const QByteArray start = upper.left(4096);
    return start.contains("#FORMAT=") || start.contains("#DEPTH=") || start.contains("#DATARADIX=");
}

} // namespace

ImageReader::ImageReader(const ImageOptions& options)
    : m_options(options)
{
}

ImageResult ImageReader::readFile(const QString& path) const
{
    const QString name = QFileInfo(path).fileName();
    ImageBuilder builder(m_options, name);
    const auto failed = [&builder](const QString& text) {
        builder.fail(0, text);
        return builder.finish(false, imageUnknown);
    };
    const QFileInfo info(path);
    if (!info.exists())
        return failed(QStringLiteral("There is no such file."));
    // Reading a pipe or a device might never end.
    if (!info.isFile())
        return failed(QStringLiteral("This is no regular file."));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failed(file.errorString());
    if (file.size() > maxFileSize)
        return failed(QStringLiteral("The file has %1 MB; an image has %2 MB at the most.")
                          .arg(file.size() >> 20)
                          .arg(maxFileSize >> 20));
    const QByteArray content = file.read(maxFileSize + 1);
    if (file.error() != QFile::NoError)
        return failed(file.errorString());
    return read(content, name);
}

ImageResult ImageReader::read(const QByteArray& content, const QString& name) const
{
    ImageBuilder builder(m_options, name);
    const QByteArray text = withoutMarks(content);
    const auto failed = [&builder](const QString& error) {
        builder.fail(0, error);
        return builder.finish(false, imageUnknown);
    };
    if (content.size() > maxFileSize)
        return failed(QStringLiteral("The image has more than %1 MB.").arg(maxFileSize >> 20));
    if (text.contains('\0'))
        return failed(QStringLiteral("This is a binary file, and not the text of an image."));
    if (hasLongLine(text))
        return failed(QStringLiteral("A line has more than %1 kB: this is no image.").arg(maxLineLength >> 10));
    const eImageFormat_t kind = format(text);
    const sFormat_t* row = formatRow(kind);
    if (row == nullptr)
        return failed(text.trimmed().isEmpty() ? QStringLiteral("The file is empty.")
                                               : QStringLiteral("The content is no image of a kind that is known."));
    return builder.finish(row->read(text, &builder), kind);
}

eImageFormat_t ImageReader::format(const QByteArray& content)
{
    if (firstWords(content).startsWith(':'))
        return imageIntelHex;
    const QByteArray upper = content.toUpper();
    if (hasWordBefore(upper, "MEMORY_INITIALIZATION_VECTOR", "="))
        return imageCoe;
    if (hasInitStrings(upper))
        return imageHdl;
    if (hasWordBefore(upper, "CONTENT", "B") &&
        (hasWordBefore(upper, "WIDTH", "=") || hasWordBefore(upper, "DEPTH", "=")))
        return imageMif;
    if (hasLatticeHeader(upper))
        return imageLatticeMem;
    const eImageFormat_t words = upper.contains('@') ? imageMem : imageHex;
    if (isWordFile(content))
        return words;
    if (isListing(content))
        return imageListing;
    return startsAsWordFile(content) ? words : imageUnknown;
}

QString ImageReader::formatName(eImageFormat_t format)
{
    const sFormat_t* row = formatRow(format);
    return row != nullptr ? QString::fromLatin1(row->name) : QString();
}

} // namespace nsImport
