// Strings: quotes, character sets and the selection of a character.

#include "ModAsmFe.h"

#include "AsmFeParseArg.h"

#include <QTextCodec>

namespace nsModAsmFe {

bool ModAsmFe::isString(const QString& text)
{
    return text.size() >= 2 && text.startsWith('"') && text.endsWith('"');
}

QString ModAsmFe::toString(QString text)
{
    if (text.startsWith('"'))
        text.remove(0, 1);
    if (text.endsWith('"'))
        text.chop(1);
    return text.replace(QLatin1String("\\\""), QLatin1String("\""));
}

QByteArray ModAsmFe::toEncString(const QString& text, QTextCodec* codec)
{
    return codec->fromUnicode(toString(text));
}

bool ModAsmFe::syntacticsCheckArgString(const SrcReference* srcRef, Arg* arg, ArgExt* ext, bool keepString)
{
    if (ext->parentheses != ArgExt::parenthesesNone) {
        m_msgHndlr->signMsg(errUnsupportedParenthese, srcRef);
        return false;
    }
    if (arg->type == Arg::unset) {
        arg->strValue = toString(arg->name);
        arg->type = Arg::stringUtf16;
        if (arg->strValue.isEmpty()) {
            m_msgHndlr->signMsg(errStrEmpty, srcRef);
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
        m_msgHndlr->signMsg(errUnsupportedArgument, srcRef, arg->name);
        return false;
    }
    return selectFromString(srcRef, arg, ext, keepString);
}

QTextCodec* ModAsmFe::codecOfString(const SrcReference* srcRef, ArgExt* ext)
{
    if (!ext->attr.isEmpty() && isCharset(ext->attrUpper)) {
        ext->attrType = ArgExt::charset;
        QTextCodec* codec = QTextCodec::codecForName(ext->attr.toLatin1());
        if (codec == nullptr)
            m_msgHndlr->signMsg(errStrIvldCharset, srcRef, ext->attr);
        return codec;
    }
    if (behaviorCharset == charsetError) {
        m_msgHndlr->signMsg(errStrNoCharset, srcRef);
        return nullptr;
    }
    if (m_defaultCodec == nullptr)
        m_msgHndlr->signMsg(errStrNoDefaultCodec, srcRef);
    else if (behaviorCharset == charsetWarn)
        m_msgHndlr->signMsg(warnStrUsingDefaultCharset, srcRef, QString::fromLatin1(m_defaultCodec->name()));
    return m_defaultCodec;
}

bool ModAsmFe::encodeString(const SrcReference* srcRef, Arg* arg, ArgExt* ext)
{
    QTextCodec* codec = codecOfString(srcRef, ext);
    if (codec == nullptr)
        return false;
    arg->type = Arg::stringEncoded;
    arg->barrValue = codec->fromUnicode(arg->strValue);
    return true;
}

bool ModAsmFe::selectFromString(const SrcReference* srcRef, Arg* arg, ArgExt* ext, bool keepString)
{
    if (!ext->attr.isEmpty()) {
        if (!ext->range.isEmpty()) {
            m_msgHndlr->signMsg(errStrAttrRangeConflict, srcRef);
            return false;
        }
        if (ext->attrUpper == QLatin1String("LEN")) {
            arg->type = Arg::numeric;
            arg->iValue = arg->barrValue.size();
            return true;
        }
        if (ext->attrType != ArgExt::charset) {
            if (isCharset(ext->attrUpper))
                m_msgHndlr->signMsg(errStrAlreadyEnc, srcRef);
            else
                m_msgHndlr->signMsg(errUnsupportedAttribute, srcRef, ext->attr);
            return false;
        }
    }
    int index = 0;
    if (ext->range.isEmpty()) {
        if (keepString)
            return true;
        if (arg->barrValue.size() != 1) {
            m_msgHndlr->signMsg(errStrIvldCharCnt, srcRef);
            return false;
        }
    } else {
        index = m_parseArg->toNumeric(ext->range);
        if (index < 0 || index >= arg->barrValue.size()) {
            m_msgHndlr->signMsg(errStrRangeExceedLen, srcRef);
            return false;
        }
    }
    arg->type = Arg::numeric;
    arg->iValue = static_cast<signed char>(arg->barrValue.at(index));
    return true;
}

bool ModAsmFe::setupDefaultCodec(const QString& name)
{
    m_defaultCodec = QTextCodec::codecForName(name.toLatin1());
    if (m_defaultCodec == nullptr) {
        m_msgHndlr->signMsg(errStrIvldDefaultCharset, name);
        return false;
    }
    m_msgHndlr->signMsg(infoStrSetDefaultCharset, QString::fromLatin1(m_defaultCodec->name()));
    return true;
}

bool ModAsmFe::syntacticsCheckDefaultTextCodec()
{
    if (m_defaultCodec != nullptr)
        return true;
    m_msgHndlr->signMsg(errStrNoDefaultCodec);
    return false;
}

const QStringList& ModAsmFe::charsetNames()
{
    if (m_charsetNames.isEmpty()) {
        const QList<QByteArray> codecs = QTextCodec::availableCodecs();
        for (const QByteArray& codec : codecs)
            m_charsetNames.append(QString::fromLatin1(codec).toUpper());
        m_charsetSet = QSet<QString>(m_charsetNames.cbegin(), m_charsetNames.cend());
    }
    return m_charsetNames;
}

bool ModAsmFe::isCharset(const QString& upperName)
{
    charsetNames();
    return m_charsetSet.contains(upperName);
}

} // namespace nsModAsmFe
