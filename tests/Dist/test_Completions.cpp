// What bash and zsh offer, asked of these shells themselves, against what the programs say of their options.

#include "DistSupport.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>

using namespace DistSupport;

namespace {

/// A shell in a folder with some files.
class Shell : public ::testing::TestWithParam<std::string>
{
protected:
    Shell()
    {
        QDir(m_folder.path()).mkpath("home");
        QDir(m_folder.path()).mkpath("work/sub");
        for (const char* name : {"p.nalvo", "a source.psm", "check.js", "core.vhd", "values.txt"}) {
            QFile file(m_folder.filePath("work/") + name);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }

    /// What the shell offers at the end of each command line, without the blank or slash that it would add.
    QList<QStringList> offers(const QStringList& lines) const
    {
        return GetParam() == "bash" ? bashOffers(lines) : zshOffers(lines);
    }
    QStringList offers(const QString& line) const { return offers(QStringList(line)).constFirst(); }

private:
    QProcessEnvironment env() const
    {
        QProcessEnvironment env = environment();
        env.insert("HOME", m_folder.filePath("home"));
        return env;
    }

    /// Splits the line as bash does and calls the function that the file of the program has registered. Bash looks for
    /// the file by the name of the program.
    QList<QStringList> bashOffers(const QStringList& lines) const
    {
        const QString script = R"sh(
            program=$1; folder=$2; shift 2
            . "$folder/bash-completion/completions/$program" || exit 1
            COMP_WORDS=("$@")
            COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
            set -- $(complete -p "$program")
            while [ "$1" != -F ]; do shift; done
            "$2" "$program" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
            [ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\n' "${COMPREPLY[@]}"
        )sh";
        QList<QStringList> result;
        for (const QString& line : lines) {
            QStringList words;
            for (const QString& word : line.split(' ')) {
                // "=" is a word of its own.
                QStringList parts = word.split('=');
                words.append(parts.takeFirst());
                for (const QString& part : qAsConst(parts)) {
                    words.append("=");
                    if (!part.isEmpty())
                        words.append(part);
                }
            }
            const QStringList head{"--norc", "-c", script, "bash", words.constFirst(), NALVO_DIST_DIR};
            const sResult_t shell = run("bash", head + words, m_folder.filePath("work"), env());
            EXPECT_EQ(shell.status, 0) << qPrintable(line);
            EXPECT_EQ(shell.err, QString()) << qPrintable(line);
            QStringList offered = shell.out.split('\n', Qt::SkipEmptyParts);
            offered.sort();
            result.append(offered);
        }
        return result;
    }

    QList<QStringList> zshOffers(const QStringList& lines) const
    {
        const QStringList head{"-f", sourceFile("tests/Dist/complete.zsh"), installed("zsh/site-functions")};
        const sResult_t shell = run("zsh", head + lines, m_folder.filePath("work"), env());
        EXPECT_EQ(shell.status, 0);
        EXPECT_EQ(shell.err, QString());
        QList<QStringList> result;
        for (const QString& line : shell.out.split('\n', Qt::SkipEmptyParts)) {
            if (line.startsWith("line:"))
                result.append(QStringList());
            else
                // Blanks come with a backslash.
                result.last().append(line.mid(int(qstrlen("offered:"))).remove('\\'));
        }
        EXPECT_EQ(result.size(), lines.size());
        for (QStringList& offered : result)
            offered.sort();
        return result;
    }

    QTemporaryDir m_folder;
};

INSTANTIATE_TEST_SUITE_P(Shells, Shell, ::testing::Values(std::string("bash"), std::string("zsh")),
                         [](const auto& shell) { return shell.param; });

/// The kinds of output that the manual page names.
QStringList pageKinds()
{
    static const QRegularExpression name("^\\.Cm (\\w+)", QRegularExpression::MultilineOption);
    const QString page = content(installed("man/man1/nalvo-asm.1"));
    QStringList kinds;
    auto names = name.globalMatch(page.section("Kinds are\n", 1).section("options are", 0, 0));
    while (names.hasNext())
        kinds.append(names.next().captured(1));
    kinds.sort();
    return kinds;
}

bool offersOptions(const QStringList& offered)
{
    return std::any_of(offered.begin(), offered.end(), [](const QString& word) { return word.startsWith('-'); });
}

} // namespace

TEST_P(Shell, offersTheOptionsOfEachProgramAndNoOthers)
{
    QStringList lines;
    for (const QString& program : programs())
        lines.append(program + " -");
    const QList<QStringList> offered = offers(lines);
    for (int i = 0; i < lines.size(); ++i)
        EXPECT_EQ(offered.value(i), QStringList(helpOptions(programs().at(i)).keys())) << qPrintable(lines.at(i));
}

TEST_P(Shell, offersNoOptionAsTheValueOfAnOption)
{
    QStringList lines;
    QList<bool> takesValue;
    for (const QString& program : programs()) {
        const QMap<QString, bool> options = helpOptions(program);
        for (auto it = options.begin(); it != options.end(); ++it) {
            // What ends the program is followed by nothing.
            if (it.key() == "--help" || it.key() == "-h" || it.key() == "--version")
                continue;
            lines.append(program + ' ' + it.key() + " -");
            takesValue.append(it.value());
        }
    }
    const QList<QStringList> offered = offers(lines);
    for (int i = 0; i < lines.size(); ++i)
        EXPECT_EQ(offersOptions(offered.value(i)), !takesValue.at(i)) << qPrintable(lines.at(i));
}

TEST_P(Shell, offersTheValuesThatTheProgramTakes)
{
    struct sChoice_t
    {
        const char* program;
        const char* option;
        QStringList values;
    };
    const QList<sChoice_t> choices = {
        {"nalvo-asm", "--event", {"button1", "button2", "none", "save"}},
        {"nalvo-import", "--dialect", {"auto", "kcpsm3", "kcpsm6", "mico8", "pblazide"}},
        {"nalvo-import", "--format", {"json", "text"}},
        {"nalvo-import", "--processor", {"mico8", "pb3", "pb6"}},
        {"nalvo-prove", "--format", {"json", "text"}},
        {"nalvo-prove", "--language", {"verilog", "vhdl"}},
    };
    QStringList lines;
    for (const sChoice_t& choice : choices)
        lines << QString("%1 %2 ").arg(choice.program, choice.option)
              << QString("%1 %2=").arg(choice.program, choice.option);
    const QList<QStringList> offered = offers(lines);
    for (int i = 0; i < choices.size(); ++i) {
        const sChoice_t& choice = choices.at(i);
        EXPECT_EQ(offered.value(2 * i), choice.values) << qPrintable(lines.at(2 * i));
        EXPECT_EQ(offered.value(2 * i + 1), choice.values) << qPrintable(lines.at(2 * i + 1));
        // The value is the only thing that the program could complain about first.
        const auto complaint = [&](const QString& value) {
            const QStringList image = choice.option == QLatin1String("--processor") ? QStringList{"--image", "none.hex"}
                                                                                    : QStringList{"none.nalvo"};
            const QStringList core =
                choice.program == QLatin1String("nalvo-prove") ? QStringList{"--core", "none.v"} : QStringList();
            return run(programFile(choice.program), QStringList{choice.option, value} + core + image).err;
        };
        EXPECT_TRUE(complaint("bogus").contains("bogus")) << choice.option << qPrintable(complaint("bogus"));
        for (const QString& value : choice.values)
            EXPECT_FALSE(complaint(value).contains("Unknown")) << choice.option << qPrintable(complaint(value));
    }
}

TEST_P(Shell, offersTheKindsOfOutput)
{
    const QString help = helpText("nalvo-asm").simplified();
    QStringList kinds = help.section("KIND is one of: ", 1).section('.', 0, 0).split(", ");
    EXPECT_GE(kinds.size(), 5);
    kinds.sort();
    QStringList offered = offers("nalvo-asm --output ");
    for (QString& kind : offered)
        kind.remove('=');
    EXPECT_EQ(offered, kinds);
    EXPECT_EQ(pageKinds(), kinds);
}

TEST_P(Shell, offersFilesThatTheProgramsRead)
{
    const QList<QPair<QString, QStringList>> expected = {
        {"nalvo ", {"p.nalvo", "sub"}},
        {"nalvo p", {"p.nalvo"}},
        {"nalvo -s ", {"check.js", "sub"}},
        {"nalvo-asm ", {"p.nalvo", "sub"}},
        {"nalvo-asm -W ", {"p.nalvo", "sub"}},
        {"nalvo-asm -- ", {"p.nalvo", "sub"}},
        {"nalvo-asm --format ", {"a source.psm", "json", "sub", "text"}},
        {"nalvo-asm --listing v", {"values.txt"}},
        {"nalvo-asm --listing=v", {"values.txt"}},
        {"nalvo-asm -o hex=v", {"values.txt"}},
        {"nalvo-asm --output=hex=v", {"values.txt"}},
        {"nalvo-asm --depfile=v", {"values.txt"}},
        {"nalvo-import ", {"a source.psm", "sub"}},
        {"nalvo-import --output ", {"sub"}},
        {"nalvo-prove --core ", {"core.vhd", "sub"}},
        {"nalvo-sim ", {"p.nalvo", "sub"}},
        {"nalvo-sim --port 0x10=v", {"values.txt"}},
        {"nalvo-sim --port=0x10=v", {"values.txt"}},
        {"nalvo-sim -n ", {}},
    };
    QStringList lines;
    for (const auto& one : expected)
        lines.append(one.first);
    const QList<QStringList> offered = offers(lines);
    for (int i = 0; i < expected.size(); ++i) {
        QStringList words;
        for (QString word : offered.value(i))
            words.append(word.endsWith('/') ? word.chopped(1) : word);
        // One of the shells offers a folder once as a folder and once as a file.
        words.removeDuplicates();
        EXPECT_EQ(words, expected.at(i).second) << qPrintable(expected.at(i).first);
    }
}
