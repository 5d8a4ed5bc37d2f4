#pragma once

#include "ProgramImage.h"

#include <QByteArray>
#include <QStringList>

namespace nsImport {

/// The kinds of files that hold the image of a program.
enum eImageFormat_t {
    imageUnknown,
    imageHex,        ///< hexadecimal words, one or several a line, from address 0 on
    imageMem,        ///< the same with lines `@addr`
    imageCoe,        ///< memory_initialization_vector
    imageMif,        ///< CONTENT BEGIN ... END
    imageHdl,        ///< VHDL or Verilog with INIT_xx and INITP_xx strings
    imageIntelHex,   ///< records `:LLAAAATT...`
    imageListing,    ///< a log or a listing: address, word, source text
    imageLatticeMem, ///< `#Format=`, `#Depth=`, then the words
};

/// What a file says that can not be seen in it. With the defaults, a file that can be read in two ways is an error.
struct ImageOptions
{
    enum eAddresses_t {
        eAddressesFound, ///< of a mem file: hexadecimal, or decimal if our assembler has written it without gaps
        eAddressesHex,
        eAddressesDecimal,
    };

    int wordBits = 18; ///< width of a word, 1 to 32; a larger number in the file is an error
    eAddresses_t addresses = eAddressesFound;
};

/// An image that was read, or why it was not.
struct ImageResult
{
    bool ok = false;
    QString error;     ///< for the user, without place; empty if ok
    int errorLine = 0; ///< counted from 1; 0 if the error has no line
    QStringList notes; ///< for the user: what was supposed
    eImageFormat_t format = imageUnknown;
    ProgramImage image;
};

/// Reads the images that assemblers write. The content decides what a file is, never its name.
///
/// There is no wrong word in silence: what is not understood, a word that is too wide, and two different words for one
/// address are errors.
class ImageReader
{
public:
    /// Longest file that is read, in bytes.
    static const qint64 maxFileSize = 32 << 20;

    explicit ImageReader(const ImageOptions& options = ImageOptions());

    /// Reads a regular file.
    ImageResult readFile(const QString& path) const;
    /// Reads the content of a file.
    /// @param name of the file, for the places of the words
    ImageResult read(const QByteArray& content, const QString& name) const;

    /// The kind of file as its content shows it; imageUnknown if it is none of them.
    static eImageFormat_t format(const QByteArray& content);
    /// Name of a kind for the user, such as "VHDL or Verilog with INIT strings".
    static QString formatName(eImageFormat_t format);

private:
    ImageOptions m_options;
};

} // namespace nsImport
