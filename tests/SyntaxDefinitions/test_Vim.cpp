#include "AsmProject.h"
#include "Grammar.h"
#include "Painted.h"
#include "QtPrinters.h"
#include "Tool.h"
#include "VimDefinition.h"

#include <QTemporaryDir>

#include <cctype>
#include <cstring>

namespace {

/// Vim with the definitions as its runtime folder, and nothing of the user's.
class SyntaxVim : public ::testing::Test
{
protected:
    SyntaxVim()
    {
        m_env.insert("HOME", m_dir.path());
        m_env.insert("LC_ALL", "C.UTF-8");
        m_env.remove("VIMINIT");
        m_env.remove("EXINIT");
    }

    QString path(const QString& name) const { return m_dir.filePath(name); }
    /// Opens the file and runs the lines of a script, whose last word is the file "out".
    QByteArray scriptOutput(const QString& file, const QByteArray& script) const
    {
        const QByteArray start =
            "set encoding=utf-8\nset runtimepath^=" NALVO_EDITOR_DIR "/vim\nfiletype plugin on\nsyntax on\n";
        writeText(path("script.vim"), start + "edit " + file.toUtf8() + "\n" + script + "\nqall!\n");
        outputOf("vim", {"-Es", "-u", "NONE", "-i", "NONE", "-n", "-N", "-S", path("script.vim")}, m_env, m_dir.path());
        QFile out(path("out"));
        EXPECT_TRUE(out.open(QIODevice::ReadOnly)) << "the script has not come to its end";
        return out.readAll();
    }
    QStringList painted(const QStringList& lines) const
    {
        writeText(path("all.psm"), lines.join('\n').toUtf8() + '\n');
        // A line of the output is the lengths and names of its parts.
        const QByteArray names = scriptOutput("all.psm", R"(
let lines = []
for l in range(1, line("$"))
  let parts = []
  let before = -1
  let start = 1
  let size = strlen(getline(l))
  for c in range(1, size)
    let id = synID(l, c, 1)
    if id != before
      if c > 1
        call add(parts, (c - start) . synIDattr(before, "name"))
      endif
      let before = id
      let start = c
    endif
  endfor
  if size > 0
    call add(parts, (size + 1 - start) . synIDattr(before, "name"))
  endif
  call add(lines, join(parts, " "))
endfor
call writefile(lines, "out"))");
        QStringList result;
        for (const QByteArray& line : names.split('\n'))
            result.append(paintedLine(line));
        result.removeLast();
        return result;
    }

    QTemporaryDir m_dir;
    QProcessEnvironment m_env = QProcessEnvironment::systemEnvironment();

private:
    static QString paintedLine(const QByteArray& parts)
    {
        QString painted;
        if (parts.isEmpty())
            return painted;
        for (const QByteArray& part : parts.split(' ')) {
            int digits = 0;
            while (digits < part.size() && part.at(digits) >= '0' && part.at(digits) <= '9')
                ++digits;
            const QString group = QString::fromUtf8(part.mid(digits));
            EXPECT_TRUE(group.isEmpty() || group.startsWith("nalvo")) << group.toStdString();
            const QChar letter = letterOf(group.mid(int(strlen("nalvo"))).toLower());
            EXPECT_TRUE(group.isEmpty() || letter != QChar('.')) << group.toStdString();
            painted += QString(part.left(digits).toInt(), letter);
        }
        return painted;
    }
};

} // namespace

TEST_F(SyntaxVim, paintsTheSamples)
{
    expectSamples(painted(sampleLines()), "Vim");
}

TEST_F(SyntaxVim, paintsTheSourcesAsTheWindow)
{
    expectAsWindow(painted(sourceLines()), "Vim");
}

TEST_F(SyntaxVim, everyGroupHasALook)
{
    QByteArray script = "let links = []\n";
    QByteArray expected;
    for (const nsSyntax::sStyle_t& style : nsSyntax::styles()) {
        QByteArray group = style.id;
        group[0] = char(toupper(group[0]));
        script += "call add(links, synIDattr(hlID(\"nalvo" + group +
                  "\"), \"name\") . \" \" . "
                  "synIDattr(synIDtrans(hlID(\"nalvo" +
                  group + "\")), \"name\"))\n";
        expected += "nalvo" + group + '\n';
    }
    writeText(path("a.psm"), " NOP\n");
    const QList<QByteArray> links = scriptOutput("a.psm", script + "call writefile(links, \"out\")").split('\n');
    ASSERT_EQ(links.size(), nsSyntax::styles().size() + 1);
    for (int i = 0; i < nsSyntax::styles().size(); ++i) {
        const QList<QByteArray> names = links.at(i).split(' ');
        EXPECT_EQ(names.at(0), expected.split('\n').at(i));
        // A group that is linked to nothing is its own.
        EXPECT_NE(names.value(1), names.at(0));
    }
}

TEST_F(SyntaxVim, filesHaveTheirTypes)
{
    writeText(path("a.psm"), " NOP\n");
    writeText(path("a.nalvo"), "<project/>\n");
    const QByteArray types = scriptOutput("a.psm", "let types = [&filetype, &commentstring, &formatprg]\n"
                                                   "edit a.nalvo\ncall add(types, &filetype)\n"
                                                   "call writefile(types, \"out\")");
    EXPECT_EQ(types.toStdString(), "nalvo\n; %s\nnalvo-asm --format -\nxml\n");
}

/// What :make makes of the messages of a real run: type, file, line and text.
TEST_F(SyntaxVim, makeFillsTheListOfPlaces)
{
    m_env.insert("PATH", QFileInfo(NALVO_ASM).path() + ':' + m_env.value("PATH"));
    writeText(path("a.psm"), "; a source\nstart:  LOAD s0, 300\n#EQU unused, 1\n        JUMP start\n");
    writeText(path("p q.nalvo"), AsmProject().text());
    const QByteArray list = scriptOutput("a.psm", "compiler nalvo_asm\nmake -v\nlet list = []\n"
                                                  "for e in getqflist()\n"
                                                  "  if e.valid && e.type !=# 'i'\n"
                                                  "    call add(list, e.type . '|' . bufname(e.bufnr) . '|' . e.lnum . "
                                                  "'|' . e.text)\n"
                                                  "  endif\nendfor\n"
                                                  "call add(list, len(filter(getqflist(), 'v:val.type ==# \"i\"')) > "
                                                  "0)\ncall writefile(list, \"out\")");
    EXPECT_EQ(list.toStdString(), "e|a.psm|2|Value \"300\"exceeds maximum of \"255\"! [errExceededMaxNumeric]\n"
                                  "1\n");
}

/// The line of the help for those who do not use the compiler file.
TEST_F(SyntaxVim, expressionsAreThoseOfVim)
{
    EXPECT_EQ(nsSyntax::vimExpression("\\b0[xX]{1}[0-9]+\\b"), "\\<0[xX]\\{1}[0-9]\\+\\>");
    EXPECT_EQ(nsSyntax::vimExpression("(?<=a|b)c?"), "\\%(a\\|b\\)\\@<=c\\?");
    EXPECT_EQ(nsSyntax::vimExpression("\"(?:[^\"\\\\]|\\\\.)*\""), "\"\\%([^\"\\\\]\\|\\\\.\\)*\"");
}
