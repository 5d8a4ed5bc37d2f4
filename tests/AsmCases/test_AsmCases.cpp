// Every assembler case is one test. See tests/data/asm/README.md for the form of a case.

#include "AsmCase.h"
#include "AsmRun.h"
#include "QtPrinters.h"

#include "AsmFeMsgCatalogue.h"
#include "ProcAsmMsg.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSet>

#include <algorithm>

namespace {

const QString dataFolder = QStringLiteral(NALVO_SOURCE_DIR "/tests/data/asm");

std::vector<QString> allCases()
{
    const QStringList cases = AsmCase::scan(dataFolder);
    return {cases.cbegin(), cases.cend()};
}

std::string caseName(const ::testing::TestParamInfo<QString>& info)
{
    QString name = QDir(dataFolder).relativeFilePath(info.param);
    if (name.endsWith(".psm"))
        name.chop(4);
    for (QChar& c : name) {
        if (!c.isLetterOrNumber())
            c = '_';
    }
    return name.toStdString();
}

class AsmCases : public ::testing::TestWithParam<QString>
{
};

TEST_P(AsmCases, matches)
{
    const AsmCase asmCase(GetParam());
    AsmRun run(asmCase);
    const QStringList differences = run.differences();
    EXPECT_TRUE(differences.isEmpty()) << differences.join('\n').toStdString();
}

/// The formatter changes neither words nor messages.
TEST_P(AsmCases, matchesWhenFormatted)
{
    const AsmCase asmCase(GetParam());
    AsmRun run(asmCase, AsmRun::sourcesFormatted);
    const QStringList differences = run.differences();
    EXPECT_TRUE(differences.isEmpty()) << differences.join('\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(data, AsmCases, ::testing::ValuesIn(allCases()), caseName);

/// Messages that no stage can show, as the catalogue holds them for other uses, or as an earlier check makes them
/// impossible.
const QSet<QString> unreachable = {
    "warnNothingTodo",
    "errSetMissingEndNsBeforeNs",
    "errExprEmptyParentheses",
    "warnIODevNoType",
    "warnMMapIODevOverwriteValues",
    "errIODevUnsupportedDstFileType",
    "errIODevUnsupportedDirection",
    "errIODevDuplicate",
    "errIODevExpectDevList",
    "errMMEmptyDevList",
    "errMMDevDuplicate",
    "errMMDevNotDefinedAsIODev",
    "errMMapIODevNotDefined",
    "errMMapIODevIvldDevCnt",
    // The name was looked up before, so it is there.
    "errEquUnresolvedLabel",
    // The kinds of arguments are not known yet when the mapping looks at them.
    "errMMPageCrossReference",
    // A device of the sources has a kind, and so has the default one.
    "errTargetNoType",
    // Only who runs the assembler refuses a file; a case has nobody who does.
    "errTargetOutside",
    // No stage opens this group.
    "grpMapMemToIODev",
};

TEST(AsmCatalogue, everyMessageIsProvokedAndHasAKey)
{
    QSet<QString> provoked;
    for (const QString& path : allCases()) {
        const AsmCase asmCase(path);
        const AsmRun run(asmCase);
        const QStringList keys = run.provokedKeys();
        provoked.unite(QSet<QString>(keys.cbegin(), keys.cend()));
        EXPECT_EQ(run.keylessMessages(), QStringList()) << path.toStdString();
    }
    QStringList missing;
    const auto check = [&](const char* key) {
        if (!provoked.contains(key) && !unreachable.contains(key))
            missing.append(key);
        EXPECT_FALSE(provoked.contains(key) && unreachable.contains(key)) << key << " is reachable";
    };
    for (int i = 0; i < nsModAsmFe::eMsgTypeCount; ++i)
        check(nsModAsmFe::msgText(i)->key);
    for (int i = 0; i < nsModAsmFe::eMsgGrpCount; ++i)
        check(nsModAsmFe::msgGrpText(i)->key);
    for (int i = 0; i < nsProc::eAsmMsgCount; ++i)
        check(nsProc::asmMsg(i)->key);
    EXPECT_TRUE(missing.isEmpty()) << missing.join(' ').toStdString();
}

TEST(AsmCaseCount, thereAreEnoughCases)
{
    int errors = 0;
    const std::vector<QString> cases = allCases();
    for (const QString& path : cases) {
        const AsmCase asmCase(path);
        for (const ExpectedMsg& msg : asmCase.messages) {
            if (msg.severity == "error") {
                ++errors;
                break;
            }
        }
    }
    // About as many as there are: a folder that is no longer found, or a scan that ends early, must show.
    EXPECT_GE(cases.size(), 1430u);
    for (const char* topic : {"directive", "expr", "iodev", "lmico8", "mapping", "numeric", "output", "parse",
                              "pipeline", "string", "symbol", "xpblze3", "xpblze6"}) {
        const QString folder = dataFolder + '/' + QLatin1String(topic) + '/';
        EXPECT_GE(
            std::count_if(cases.begin(), cases.end(), [&](const QString& path) { return path.startsWith(folder); }), 30)
            << topic;
    }
    EXPECT_GE(errors * 3, int(cases.size()));
}

} // namespace
