#include "Faults.h"

#include "CoreWords.h"
#include "RandomWords.h"

#include <QFile>

namespace {

const QString folder = QStringLiteral(NALVO_CORES_DIR);

QString read(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void append(QString* text, const QString& line)
{
    if (!text->isEmpty())
        *text += '\n';
    *text += line;
}

/// Zero and carry set, 0 minus FF: the borrow goes round. The conditional jump shows zero.
Trial roundBorrow(quint32 op)
{
    using namespace p6;
    Trial trial;
    trial.stimulus.program = program({{0, {withK(LOAD, 0, 1), SR0(0), withK(op, 1, 0xFF), jump(8, When::Z)}}});
    trial.stimulus.clocks = 12;
    return trial;
}

} // namespace

std::vector<Fault> readFaults()
{
    std::vector<Fault> faults;
    for (const QString& line : read(folder + "/faults.list").split('\n')) {
        if (line.startsWith('-'))
            append(&faults.back().from, line.mid(2));
        else if (line.startsWith('+'))
            append(&faults.back().to, line.mid(2));
        else if (!line.isEmpty() && !line.startsWith('#'))
            faults.push_back({line.section(": ", 0, 0), line.section(": ", 1), {}, {}});
    }
    return faults;
}

QString sourceWith(const Fault& fault)
{
    QString source = read(folder + '/' + fault.file);
    if (fault.from.isEmpty() || source.count(fault.from) != 1)
        return {};
    return source.replace(fault.from, fault.to);
}

std::vector<Trial> trials(Core core)
{
    std::vector<Trial> all;
    for (unsigned seed = 0; seed < 6; ++seed) {
        std::mt19937 random(500 + seed);
        const CoreBuild build = seed % 2 == 0 ? CoreBuild() : randomBuild(core, &random);
        for (const Flavour flavour : allFlavours)
            all.push_back({build, randomStimulus(core, build, flavour, 2000, &random)});
    }
    if (core == Core::PicoBlaze6) {
        all.push_back(roundBorrow(p6::SUBC));
        all.push_back(roundBorrow(p6::COMPC));
    }
    return all;
}
