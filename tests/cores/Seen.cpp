#include "Seen.h"

#include <gtest/gtest.h>

#include <map>

namespace {

const HdlCore& hdl(Core core, Language language, const CoreBuild& build)
{
    using Key = std::tuple<Core, Language, int, int, int, int, int>;
    static std::map<Key, std::unique_ptr<HdlCore>> cores;
    std::unique_ptr<HdlCore>& entry =
        cores[{core, language, build.scratchpadSize, build.vector, build.hwBuild, build.registers, build.addressBits}];
    if (!entry)
        entry = std::make_unique<HdlCore>(core, language, build);
    return *entry;
}

} // namespace

Seen::Seen(Core core, const Stimulus& stimulus, const CoreBuild& build)
    : m_run(runModel(core, build, stimulus))
{
    for (const Language language : allLanguages) {
        if (HdlCore::isToolThere(language)) {
            EXPECT_EQ(difference("model", m_run.lines, nameOf(language), hdl(core, language, build).run(stimulus)),
                      std::string());
        }
    }
}

std::string Seen::between(qint64 first, qint64 past) const
{
    QStringList lines;
    for (const QString& line : m_run.lines) {
        const qint64 clock = line.section(' ', -1).toLongLong();
        if (clock >= first && clock < past)
            lines += line;
    }
    return lines.join("; ").toStdString();
}

std::string Seen::only(const QString& kinds) const
{
    QStringList lines;
    for (const QString& line : m_run.lines) {
        if (kinds.split(' ').contains(line.section(' ', 0, 0)))
            lines += line.section(' ', 0, -2);
    }
    return lines.join("; ").toStdString();
}

std::string Seen::path() const
{
    QStringList addresses;
    for (const QString& line : m_run.lines) {
        if (line.startsWith("I "))
            addresses += line.section(' ', 1, 1);
    }
    return addresses.join(' ').toStdString();
}
