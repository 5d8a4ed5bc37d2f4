#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

// The instruction sets as the manuals of the processors give them, as data of the tests alone: each form of each
// instruction with its word.

/// One form of an instruction. The word is `word` + `first` * (value of the first operand) + `second` * (value of the
/// second).
///
/// Operands in the text:
///   {r} register   {k} number of a byte   {p} port   {c} port of a constant   {s} scratchpad address
///   {a} label, its value is its address   {o} label, its value is its distance from the instruction, in 12 bits
struct sEncoding
{
    const char* text;
    int word;
    int first = 0;
    int second = 0;
};

/// One processor.
struct sInstrSet
{
    QString name;    ///< display name
    QString section; ///< first component of its keys in the project
    char regLetter;  ///< registers are this letter and a number
    int regBase;     ///< base of that number
    int regCount;
    QString numberTooLarge; ///< key and text of the message; %1 is the number
    QString portTooLarge;
    QString constPortTooLarge;
    QString addressTooLarge; ///< of the scratchpad
    int scrpdSize;           ///< the largest scratchpad that addresses are tested for
    int flowSize;            ///< number of addresses that a jump can hold
    std::vector<sEncoding> encodings;
    QHash<QString, int> settings; ///< of the project that the tests assemble

    QString regName(int number) const { return regLetter + QString::number(number, regBase).toUpper(); }
};

const sInstrSet& picoBlaze3();
const sInstrSet& picoBlaze6();
const sInstrSet& mico8();
const std::vector<const sInstrSet*>& allInstrSets();

/// All mnemonics of the common language; each processor has some of them.
QStringList allMnemonics();
/// First word of a text.
QString mnemonicOf(const QString& text);
/// The kinds of operands of a form's text, in order: the placeholder without braces, or the word itself.
QStringList operandsOf(const sEncoding& encoding);
/// The letter of an operand's placeholder, in parentheses or not; a null character for a fixed word.
QChar letterOf(const QString& operand);
