#include "StringEncoder.h"

#include "Arg.h"
#include "ArgExt.h"
#include "AsmCharsets.h"
#include "AsmFeConfig.h"
#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"

#include <QTextCodec>

namespace nsModAsmFe {

StringEncoder::StringEncoder(AsmCharsets& charsets, const AsmFeConfig& config, const AsmFeParseArg& numbers,
                             AsmFeMsgHndlr& messages)
    : m_charsets(charsets)
    , m_config(config)
    , m_numbers(numbers)
    , m_messages(messages)
{
}

bool StringEncoder::isString(const QString& text)
{
    return text.size() >= 2 && text.startsWith('"') && text.endsWith('"');
}

QString StringEncoder::toString(QString text)
{
    if (text.startsWith('"'))
        text.remove(0, 1);
    if (text.endsWith('"'))
        text.chop(1);
    return text.replace(QLatin1String("\\\""), QLatin1String("\""));
}

QByteArray StringEncoder::toEncString(const QString& text, QTextCodec* codec)
{
    return codec->fromUnicode(toString(text));
}

bool StringEncoder::syntacticsCheckArgString(const SrcReference* srcRef, Arg* arg, ArgExt* ext, bool keepString)
{
    if (ext->parentheses != ArgExt::parenthesesNone) {
        m_messages.signMsg(errUnsupportedParenthese, srcRef);
        return false;
    }
    if (arg->type == Arg::unset) {
        arg->strValue = toString(arg->name);
        arg->type = Arg::stringUtf16;
        if (arg->strValue.isEmpty()) {
            m_messages.signMsg(errStrEmpty, srcRef);
            return false;
        }
    }
    if (arg->type == Arg::stringUtf16) {
        // Each use of the constant encodes it in the character set of that use.
        if (keepString && ext->attr.isEmpty() && ext->range.isEmpty())
            return true;
        if (!encodeString(srcRef, arg, ext))
            return false;
    }
    if (arg->type != Arg::stringEncoded) {
        m_messages.signMsg(errUnsupportedArgument, srcRef, arg->name);
        return false;
    }
    return selectFromString(srcRef, arg, ext, keepString);
}

QTextCodec* StringEncoder::codecOfString(const SrcReference* srcRef, ArgExt* ext)
{
    if (!ext->attr.isEmpty() && m_charsets.contains(ext->attrUpper)) {
        ext->attrType = ArgExt::charset;
        QTextCodec* codec = QTextCodec::codecForName(ext->attr.toLatin1());
        if (codec == nullptr)
            m_messages.signMsg(errStrIvldCharset, srcRef, ext->attr);
        return codec;
    }
    if (m_config.behaviorCharset == AsmFeConfig::charsetError) {
        m_messages.signMsg(errStrNoCharset, srcRef);
        return nullptr;
    }
    QTextCodec* codec = m_charsets.defaultCodec();
    if (codec == nullptr)
        m_messages.signMsg(errStrNoDefaultCodec, srcRef);
    else if (m_config.behaviorCharset == AsmFeConfig::charsetWarn)
        m_messages.signMsg(warnStrUsingDefaultCharset, srcRef, QString::fromLatin1(codec->name()));
    return codec;
}

bool StringEncoder::encodeString(const SrcReference* srcRef, Arg* arg, ArgExt* ext)
{
    QTextCodec* codec = codecOfString(srcRef, ext);
    if (codec == nullptr)
        return false;
    arg->type = Arg::stringEncoded;
    arg->barrValue = codec->fromUnicode(arg->strValue);
    return true;
}

bool StringEncoder::selectFromString(const SrcReference* srcRef, Arg* arg, ArgExt* ext, bool keepString)
{
    if (!ext->attr.isEmpty()) {
        if (!ext->range.isEmpty()) {
            m_messages.signMsg(errStrAttrRangeConflict, srcRef);
            return false;
        }
        if (ext->attrUpper == QLatin1String("LEN")) {
            arg->type = Arg::numeric;
            arg->iValue = arg->barrValue.size();
            return true;
        }
        if (ext->attrType != ArgExt::charset) {
            if (m_charsets.contains(ext->attrUpper))
                m_messages.signMsg(errStrAlreadyEnc, srcRef);
            else
                m_messages.signMsg(errUnsupportedAttribute, srcRef, ext->attr);
            return false;
        }
    }
    int index = 0;
    if (ext->range.isEmpty()) {
        if (keepString)
            return true;
        if (arg->barrValue.size() != 1) {
            m_messages.signMsg(errStrIvldCharCnt, srcRef);
            return false;
        }
    } else {
        index = m_numbers.toNumeric(ext->range);
        if (index < 0 || index >= arg->barrValue.size()) {
            m_messages.signMsg(errStrRangeExceedLen, srcRef);
            return false;
        }
    }
    arg->type = Arg::numeric;
    arg->iValue = static_cast<signed char>(arg->barrValue.at(index));
    return true;
}

} // namespace nsModAsmFe
