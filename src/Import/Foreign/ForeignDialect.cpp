#include "ForeignDialect.h"

#include "ProcTable.h"

namespace nsImport {

namespace {

QHash<QString, const sForeignWord_t*> wordsOf(const ForeignDialect& dialect)
{
    QHash<QString, const sForeignWord_t*> words;
    for (const ForeignDialect* d = &dialect; d != nullptr; d = d->base) {
        for (int i = 0; i < d->wordCount; ++i) {
            const QString word = QString::fromLatin1(d->words[i].word);
            // The dialect's own meaning comes before that of its base.
            if (!words.contains(word))
                words.insert(word, &d->words[i]);
        }
    }
    return words;
}

} // namespace

const ForeignDialect& ForeignDialect::of(eDialect_t dialect)
{
    switch (dialect) {
    case eKcpsm6:
        return kcpsm6Dialect();
    case ePblazide:
        return pblazideDialect();
    case eMico8:
        return mico8Dialect();
    case eKcpsm3:
    case eDialectCount:
        break;
    }
    return kcpsm3Dialect();
}

const ForeignDialect* ForeignDialect::ofKey(const QString& key)
{
    for (int i = 0; i < eDialectCount; ++i) {
        const ForeignDialect& dialect = of(eDialect_t(i));
        if (key == QLatin1String(dialect.key))
            return &dialect;
    }
    return nullptr;
}

const sForeignWord_t* ForeignDialect::find(const QString& upper) const
{
    static const QHash<QString, const sForeignWord_t*> tables[eDialectCount] = {
        wordsOf(of(eKcpsm3)), wordsOf(of(eKcpsm6)), wordsOf(of(ePblazide)), wordsOf(of(eMico8))};
    return tables[dialect].value(upper, nullptr);
}

int ForeignDialect::registerOf(const QString& name) const
{
    const nsProc::sRegNaming_t& regs = processor().regs;
    if (name.size() < 2 || name.size() > 3 || name.at(0).toLower() != QLatin1Char(regs.letter))
        return -1;
    // The decimal ones may have a leading zero; the hexadecimal ones are one digit.
    if (regs.base == 16 && name.size() != 2)
        return -1;
    bool ok = false;
    const int number = name.mid(1).toInt(&ok, regs.base);
    return ok && name.at(1) != '+' && name.at(1) != '-' && number >= 0 && number < regs.count ? number : -1;
}

} // namespace nsImport
