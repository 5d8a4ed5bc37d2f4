// Every mnemonic with every pair of kinds of arguments: accepted where a form of the instruction set has this pair,
// otherwise refused with exactly one message.

#include "Encodings.h"
#include "InstrSetTest.h"
#include "ProcRun.h"
#include "QtPrinters.h"

#include <QSet>

namespace {

/// A kind of argument with a text of it.
struct sKind
{
    QString name; ///< as a form names it: "{r}", "({r})", "number", "label", "Z", or empty
    QString text;
};

QList<sKind> kindsOf(const sInstrSet& set)
{
    QList<sKind> kinds = {
        {"", ""}, {"{r}", set.regName(1)}, {"({r})", '(' + set.regName(2) + ')'}, {"number", "5"}, {"label", "here"}};
    for (const char* word : {"Z", "NZ", "C", "NC", "ENABLE", "DISABLE"})
        kinds.append(sKind{word, word});
    if (set.section == "XPBlze6") {
        kinds.append(sKind{"A", "A"});
        kinds.append(sKind{"B", "B"});
    }
    return kinds;
}

QString kindOf(const QString& operand)
{
    const QChar letter = letterOf(operand);
    if (letter.isNull() || letter == 'r')
        return operand;
    return letter == 'a' || letter == 'o' ? "label" : "number";
}

QString formKey(const QString& mnemonic, const QString& first, const QString& second)
{
    return mnemonic + '|' + first + '|' + second;
}

/// The pairs that the instruction set has.
QSet<QString> acceptedForms(const sInstrSet& set)
{
    QSet<QString> forms;
    for (const sEncoding& encoding : set.encodings) {
        const QStringList operands = operandsOf(encoding);
        forms.insert(formKey(mnemonicOf(encoding.text), kindOf(operands.value(0)), kindOf(operands.value(1))));
    }
    return forms;
}

/// Keys of the message that a pair must get; "Unsupported argument" for whatever has no message of its own.
QString refusalKey(const sInstrSet& set, const QSet<QString>& mnemonics, const QString& mnemonic, const QString& first,
                   const QString& second)
{
    if (!mnemonics.contains(mnemonic))
        return "errOcUnsupported";
    const bool isFlow = mnemonic == "JUMP" || mnemonic == "CALL";
    const bool isMemory = QStringList({"RDPRT", "WRPRT", "RDMEM", "WRMEM"}).contains(mnemonic);
    if (isMemory && first == "{r}" && second == "{r}")
        return "errUnenclosedRegister";
    if (isFlow && first == "{r}" && set.section == "XPBlze6")
        return "errUnenclosedRegisters";
    if ((mnemonic == "SET" || mnemonic == "CLR") && first.isEmpty() && second.isEmpty())
        return "errMissingArgument";
    return "errUnsupportedArgument";
}

class ArgumentForms : public InstrSetTest
{
};

INSTANTIATE_TEST_SUITE_P(processors, ArgumentForms, ::testing::ValuesIn(allInstrSets()), InstrSetTest::name);

TEST_P(ArgumentForms, onlyTheFormsOfTheSet)
{
    const sInstrSet& set = this->set();
    const QSet<QString> accepted = acceptedForms(set);
    QSet<QString> mnemonics;
    for (const sEncoding& encoding : set.encodings)
        mnemonics.insert(mnemonicOf(encoding.text));

    QStringList lines = {"here: NOP"};
    QStringList expected = {QString()};
    int acceptedLines = 0;
    for (const QString& mnemonic : allMnemonics()) {
        for (const sKind& first : kindsOf(set)) {
            for (const sKind& second : kindsOf(set)) {
                lines.append(mnemonic + ' ' + first.text + (second.text.isEmpty() ? "" : ", " + second.text));
                const bool isForm = accepted.contains(formKey(mnemonic, first.name, second.name));
                acceptedLines += int(isForm);
                expected.append(isForm ? QString() : refusalKey(set, mnemonics, mnemonic, first.name, second.name));
            }
        }
    }
    EXPECT_EQ(acceptedLines, accepted.size());
    QHash<QString, int> settings = set.settings;
    settings.insert(set.section + "/memMap/pageSize", lines.size() + 1024);
    ProcRun run(set.name, settings);
    EXPECT_FALSE(run.assemble(lines));
    EXPECT_EQ(run.messagesWithoutLine(), QStringList());
    for (int line = 0; line < lines.size(); ++line) {
        QStringList keys;
        for (const QString& message : run.messages().value(line))
            keys.append(message.section(" | ", 0, 0));
        const QStringList wanted = expected.at(line).isEmpty() ? QStringList() : QStringList(expected.at(line));
        EXPECT_EQ(keys, wanted) << lines.at(line).toStdString();
    }
}

TEST_P(ArgumentForms, messagesNameOneOfTheArguments)
{
    const sInstrSet& set = this->set();
    QStringList lines = {"here: NOP"};
    QList<QStringList> names = {{}};
    const QList<sKind> kinds = kindsOf(set);
    for (const QString& mnemonic : allMnemonics()) {
        for (int i = 0; i < kinds.size() * kinds.size(); ++i) {
            const QString first = kinds.at(i / kinds.size()).text;
            const QString second = kinds.at(i % kinds.size()).text;
            lines.append(mnemonic + ' ' + first + (second.isEmpty() ? "" : ", " + second));
            names.append(QStringList({first, second}).replaceInStrings(QRegExp("[()]"), QString()));
        }
    }
    ProcRun run(set.name, {{set.section + "/memMap/pageSize", lines.size() + 1024}});
    EXPECT_FALSE(run.assemble(lines));
    const QString start = "errUnsupportedArgument | Unsupported argument: ";
    int checked = 0;
    for (int line = 1; line < lines.size(); ++line) {
        for (const QString& message : run.messages().value(line)) {
            if (!message.startsWith(start))
                continue;
            ++checked;
            EXPECT_TRUE(names.at(line).contains(message.mid(start.size())))
                << lines.at(line).toStdString() << ": " << message.toStdString();
        }
    }
    EXPECT_GT(checked, 1000);
}

} // namespace
