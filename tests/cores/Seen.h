#pragma once

#include "CoreRun.h"
#include "CoreWords.h"

/// What a stimulus makes visible, the same on the naive model and on the HDL models of both languages: a difference is
/// a failure of the test. A language without its tool is left out.
class Seen
{
public:
    Seen(Core core, const Stimulus& stimulus, const CoreBuild& build = {});

    /// The events from a clock on and before another one, with the clocks: "I 000 0; W 01 12 3".
    std::string between(qint64 first, qint64 past) const;
    std::string before(qint64 past) const { return between(0, past); }
    /// Those of some kinds, without the clocks: "W 01 12; W 02 13". @param kinds such as "W R INT"
    std::string only(const QString& kinds) const;
    /// The addresses of executed instructions: "000 001 3ff".
    std::string path() const;
    /// As the naive model was left.
    const ExactModel& model() const { return *m_run.model; }

private:
    ModelRun m_run;
};
