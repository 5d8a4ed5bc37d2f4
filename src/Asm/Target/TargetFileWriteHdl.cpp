#include "TargetFileWriteHdl.h"

#include "FilePath.h"
#include "HexText.h"
#include "IODev.h"
#include "MetaTags.h"

#include <QFile>
#include <QFileInfo>

#include <cstring>

namespace nsModAsmFe {

/// One kind of block: its token, without index and closing brace, and the function that returns the block.
struct TargetFileWriteHdl::sBlock_t
{
    const char* prefix;
    QByteArray (TargetFileWriteHdl::*get)(qint64 index);
};

namespace {

/// A piece of a line.
struct sToken_t
{
    int pos = 0;
    int length = 0;
};

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// Finds the last token of a kind in a line: the prefix, which begins with a brace, in any case, hexadecimal digits and
/// a closing brace.
/// @param digits whether digits stand between prefix and brace
/// @return an empty piece if there is none
sToken_t lastToken(const QByteArray& line, const char* prefix, bool digits)
{
    const int prefixLength = int(std::strlen(prefix));
    // Every prefix begins with a brace, of which a line has few.
    int pos = line.size() - prefixLength - 1;
    for (; pos >= 0 && (pos = line.lastIndexOf('{', pos)) >= 0; --pos) {
        if (qstrnicmp(line.constData() + pos, prefix, uint(prefixLength)) != 0)
            continue;
        int end = pos + prefixLength;
        while (digits && end < line.size() && isHexDigit(line.at(end)))
            ++end;
        if (end < line.size() && line.at(end) == '}' && (!digits || end > pos + prefixLength))
            return {pos, end + 1 - pos};
    }
    return {};
}

/// Replaces a token that is the last of its kind, and every equal one before it.
void replaceToken(QByteArray* line, const sToken_t& token, const QByteArray& text)
{
    if (token.pos > 0 && line->lastIndexOf('{', token.pos - 1) >= 0)
        line->replace(line->mid(token.pos, token.length), text);
    else
        line->replace(token.pos, token.length, text);
}

const int digitsPerBlock = 64;

} // namespace

bool TargetFileWriteHdl::writeFile(IODev* dev, const MetaTags* metaTags)
{
    m_dev = dev;
    m_warnStuffing = true;
    m_dev->clearWritten();
    const TargetFile& hdl = dev->targets[kind()];
    if (!checkType(dev))
        return false;
    if (hdl.entityName.isEmpty())
        return fail(errTargetNoEntityName, language(), dev->devName);
    if (hdl.templateFile.isEmpty())
        return fail(errTargetNoTemplateFile, language(), dev->devName);
    if (hdl.outputFile.isEmpty())
        return fail(errTargetNoOutputFile, language(), dev->devName);
    if (!checkSize(dev))
        return false;
    // Reads the template before it opens the output, and refuses an output file that is the template.
    QByteArray text;
    if (!fillTemplate(hdl, *metaTags, &text))
        return fail(errTargetOpenTemplate, hdl.templateFile);
    if (isSameFile(hdl.outputFile, hdl.templateFile))
        return fail(errTargetOpenDestination, hdl.outputFile);
    return writeBytes(hdl.outputFile, text, errTargetOpenDestination) && checkComplete();
}

bool TargetFileWriteHdl::fillTemplate(const TargetFile& target, const MetaTags& metaTags, QByteArray* text)
{
    QFile templ(target.templateFile);
    if (!QFileInfo(target.templateFile).isFile() || !templ.open(QIODevice::ReadOnly))
        return false;
    QByteArray content = templ.readAll();
    if (templ.error() != QFile::NoError)
        return false;
    // CR LF is one line end. A carriage return anywhere else is text: the device would drop it in its text mode.
    content.replace("\r\n", "\n");
    bool begun = false;
    for (int pos = 0; pos < content.size();) {
        const int end = content.indexOf('\n', pos) + 1;
        QByteArray line = content.mid(pos, end > 0 ? end - pos : -1);
        pos += line.size();
        if (!begun) {
            begun = line.toUpper().contains("{BEGIN TEMPLATE}");
            continue;
        }
        // A NUL byte ends its line, line end included.
        line.truncate(int(qstrnlen(line.constData(), uint(line.size()))));
        fillLine(&line, target, metaTags);
        text->append(line);
    }
    return true;
}

bool TargetFileWriteHdl::fillBlock(QByteArray* line, const sBlock_t& block)
{
    const sToken_t token = lastToken(*line, block.prefix, true);
    if (token.length == 0)
        return false;
    const int prefixLength = int(std::strlen(block.prefix));
    const int index = line->mid(token.pos + prefixLength, token.length - prefixLength - 1).toInt(nullptr, 16);
    replaceToken(line, token, (this->*block.get)(index));
    return true;
}

void TargetFileWriteHdl::fillLine(QByteArray* line, const TargetFile& target, const MetaTags& metaTags)
{
    if (!line->contains('{'))
        return;
    static const sBlock_t init = {"{INIT_", &TargetFileWriteHdl::getVhdlInit};
    static const sBlock_t initP = {"{INITP_", &TargetFileWriteHdl::getVhdlInitP};
    static const sBlock_t initH = {"{[17:9]_INIT_", &TargetFileWriteHdl::getVhdlInitH};
    static const sBlock_t initHP = {"{[17:9]_INITP_", &TargetFileWriteHdl::getVhdlInitHP};
    static const sBlock_t initL = {"{[8:0]_INIT_", &TargetFileWriteHdl::getVhdlInitL};
    static const sBlock_t initPL = {"{[8:0]_INITP_", &TargetFileWriteHdl::getVhdlInitPL};
    if (!fillBlock(line, init))
        fillBlock(line, initP);
    // Most lines hold one token, which is filled now.
    if (!line->contains('{'))
        return;
    if (!fillBlock(line, initH))
        fillBlock(line, initHP);
    if (!fillBlock(line, initL) && !fillBlock(line, initPL))
        fillMetaTag(line, target, metaTags);
}

bool TargetFileWriteHdl::fillMetaTag(QByteArray* line, const TargetFile& target, const MetaTags& metaTags)
{
    const struct
    {
        const char* prefix;
        const QString& text;
    } tags[] = {
        {"{ENTITYNAME", target.entityName},         {"{TIMESTAMP", metaTags.dateTime},
        {"{PROJECTTITLE", metaTags.prjTitle},       {"{PROJECTCOMMENT", metaTags.prjComment},
        {"{PROJECTVERSION", metaTags.prjVersion},   {"{PROJECTPATH", metaTags.prjPath},
        {"{PROJECTFILENAME", metaTags.prjFileName}, {"{NAME", target.entityName},
        {"{PSMNAME", metaTags.prjFileName},
    };
    for (const auto& tag : tags) {
        const sToken_t token = lastToken(*line, tag.prefix, false);
        if (token.length == 0)
            continue;
        replaceToken(line, token, tag.text.toUtf8());
        return true;
    }
    return false;
}

unsigned int TargetFileWriteHdl::getOpcode(int addr)
{
    unsigned int value = 0;
    if (!m_dev->value(addr, &value))
        return m_dev->initValue;
    m_dev->setWritten(addr);
    return value;
}

void TargetFileWriteHdl::signWarningStuffingMemory()
{
    if (m_warnStuffing)
        warn(warnTargetStuffing);
    m_warnStuffing = false;
}

/// @param words words in a block
/// @param wordsPerStep words that one call of `digits` takes, from the address that it gets downwards
/// @param digits writes its digits at a place in the text, and returns the place after them
template <class Digits>
QByteArray TargetFileWriteHdl::getBlock(qint64 index, int words, int wordsPerStep, Digits digits)
{
    const qint64 first = index * words;
    if (first < 0 || first + words - 1 >= m_dev->memSize) {
        signWarningStuffingMemory();
        return QByteArray(digitsPerBlock, '0');
    }
    QByteArray text(digitsPerBlock, Qt::Uninitialized);
    char* place = text.data();
    for (int addr = int(first) + words - 1; addr >= int(first); addr -= wordsPerStep)
        place = digits(place, addr);
    return text;
}

QByteArray TargetFileWriteHdl::getVhdlInit(qint64 index)
{
    return getBlock(index, 16, 1, [this](char* place, int addr) {
        const unsigned int value = getOpcode(addr);
        for (int shift = 12; shift >= 0; shift -= 4)
            *place++ = hexDigit(value >> shift);
        return place;
    });
}

QByteArray TargetFileWriteHdl::getVhdlInitP(qint64 index)
{
    return getBlock(index, 128, 2, [this](char* place, int addr) {
        const unsigned int high = getOpcode(addr);
        const unsigned int low = getOpcode(addr - 1);
        *place++ = hexDigit(((low >> 16) & 3u) | ((high >> 14) & 12u));
        return place;
    });
}

QByteArray TargetFileWriteHdl::getVhdlInitL(qint64 index)
{
    return getBlock(index, 32, 1, [this](char* place, int addr) {
        const unsigned int value = getOpcode(addr);
        *place++ = hexDigit(value >> 4);
        *place++ = hexDigit(value);
        return place;
    });
}

QByteArray TargetFileWriteHdl::getVhdlInitH(qint64 index)
{
    return getBlock(index, 32, 1, [this](char* place, int addr) {
        const unsigned int value = getOpcode(addr) >> 9;
        *place++ = hexDigit(value >> 4);
        *place++ = hexDigit(value);
        return place;
    });
}

/// One bit of each of 256 words, four to a digit, the lowest address in the digit's lowest bit.
QByteArray TargetFileWriteHdl::getParityBlock(qint64 index, int bit)
{
    return getBlock(index, 256, 4, [this, bit](char* place, int addr) {
        unsigned int digit = 0;
        for (int i = 0; i < 4; ++i)
            digit = (digit << 1) | ((getOpcode(addr - i) >> bit) & 1u);
        *place++ = hexDigit(digit);
        return place;
    });
}

QByteArray TargetFileWriteHdl::getVhdlInitPL(qint64 index)
{
    return getParityBlock(index, 8);
}

QByteArray TargetFileWriteHdl::getVhdlInitHP(qint64 index)
{
    return getParityBlock(index, 17);
}

bool TargetFileWriteHdl::checkComplete()
{
    for (int addr = 0; addr < m_dev->memSize; ++addr) {
        if (!m_dev->isWritten(addr))
            return fail(errTargetNotComplete, QString::number(addr));
    }
    return true;
}

} // namespace nsModAsmFe
