#pragma once

#include "AsmCase.h"
#include "FakeMsgHook.h"
#include "FakeSrcNaviHook.h"

#include "ModAsmFe.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ModSources.h"

#include <QDir>
#include <QStringList>

/// One case, run through the real modules in a folder of its own, and compared with what it expects.
class AsmRun
{
public:
    /// What happens to the sources before they are assembled.
    enum eSources_t { sourcesAsTheyAre, sourcesFormatted };

    explicit AsmRun(const AsmCase& asmCase, eSources_t sources = sourcesAsTheyAre);
    ~AsmRun();

    /// Everything that differs from the case's expectations, one line each; empty if nothing does.
    QStringList differences();
    /// Keys of all messages and groups that the run has shown.
    QStringList provokedKeys() const;
    /// Texts of the messages of the run that have no key, and so no help.
    QStringList keylessMessages() const;

private:
    void prepareFolder(eSources_t sources);
    void formatSources();
    void writeProject();
    void run();
    void compareResult();
    void compareMessages();
    void compareInfos();
    void compareFact(const ExpectedFact& fact);
    void compareOpcodeFact(const ExpectedFact& fact);
    void compareEquFact(const ExpectedFact& fact);
    void compareNavTag(const ExpectedFact& fact);
    void compareWholeFact(const QString& name, const QString& value);
    void compareCell(const QString& text);
    void compareDevice(const QString& text);
    void compareGoldenFiles();
    void differ(const QString& text) { m_differences.append(text); }

    const AsmCase& m_case;
    QDir m_dir;
    QStringList m_differences;
    int m_infosFrom = 0; ///< where the log of the run begins, after the messages of opening the project
    FakeMsgHook m_msg;
    FakeSrcNaviHook m_navi;
    nsModPrj::ModPrj m_prj;
    nsModSources::ModSources m_sources;
    nsModAsmFe::ModAsmFe m_asmFe;
    nsModProcessor::ModProcessor m_processor;
};
