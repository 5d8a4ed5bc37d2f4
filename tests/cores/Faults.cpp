#include "Faults.h"

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
    for (unsigned seed = 0; seed < 4; ++seed) {
        std::mt19937 random(500 + seed);
        const CoreBuild build = seed % 2 == 0 ? CoreBuild() : randomBuild(core, &random);
        for (const Flavour flavour : allFlavours)
            all.push_back({build, randomStimulus(core, build, flavour, 3000, &random)});
    }
    for (const Stimulus& stimulus : flagPrograms(core))
        all.push_back({{}, stimulus});
    return all;
}
