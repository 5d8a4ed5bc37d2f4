#pragma once

#include <QByteArray>
#include <QString>

class QTextCodec;

namespace nsModAsmFe {

class Arg;
class ArgExt;
class AsmCharsets;
class AsmFeConfig;
class AsmFeMsgHndlr;
class AsmFeParseArg;
struct SrcReference;

/// Arguments that are strings: quotes, character sets and the selection of a character.
class StringEncoder
{
public:
    /// @param charsets read
    /// @param config read: what happens to a string without a character set
    StringEncoder(AsmCharsets& charsets, const AsmFeConfig& config, const AsmFeParseArg& numbers,
                  AsmFeMsgHndlr& messages);

    static bool isString(const QString& text);
    /// The text without quotes and escapes.
    static QString toString(QString text);
    static QByteArray toEncString(const QString& text, QTextCodec* codec);

    /// Checks a string and what stands around it.
    /// @param keepString the value of a constant: it may stay a string; otherwise it must become a number
    /// @return false after a reported error
    bool syntacticsCheckArgString(const SrcReference* srcRef, Arg* arg, ArgExt* ext, bool keepString);

private:
    bool encodeString(const SrcReference* srcRef, Arg* arg, ArgExt* ext);
    QTextCodec* codecOfString(const SrcReference* srcRef, ArgExt* ext);
    bool selectFromString(const SrcReference* srcRef, Arg* arg, ArgExt* ext, bool keepString);

    AsmCharsets& m_charsets;
    const AsmFeConfig& m_config;
    const AsmFeParseArg& m_numbers;
    AsmFeMsgHndlr& m_messages;
};

} // namespace nsModAsmFe
