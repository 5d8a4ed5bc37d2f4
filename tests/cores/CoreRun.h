#pragma once

#include "ExactModel.h"

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// Programs on the naive models and on the HDL models under Icarus Verilog and ghdl: the same stimulus in, lines of
/// events out.

enum class Core { PicoBlaze3, PicoBlaze6, Mico8 };
enum class Language { Verilog, Vhdl };

const Core allCores[] = {Core::PicoBlaze3, Core::PicoBlaze6, Core::Mico8};
const Language allLanguages[] = {Language::Verilog, Language::Vhdl};

/// How the core is built; each core takes what it has.
struct CoreBuild
{
    int scratchpadSize = 64; ///< 64 for PicoBlaze 3; 64, 128, 256 for PicoBlaze 6; a power of two for Mico8
    int vector = 0x3FF;      ///< PicoBlaze 6
    int hwBuild = 0;         ///< PicoBlaze 6
    int registers = 32;      ///< Mico8: 16 or 32
    int addressBits = 8;     ///< Mico8: of ports
};

struct Pulse
{
    qint64 clock;
    qint64 length = 1;
};

/// What happens to the core.
struct Stimulus
{
    std::vector<quint32> program;
    std::vector<quint8> reads;     ///< the n-th read takes the n-th value; 0 beyond the last one
    std::vector<Pulse> interrupts; ///< in ascending order
    std::vector<Pulse> resets;     ///< the same; each begins with an instruction
    int waitStates = 0;            ///< Mico8: of each port access
    qint64 clocks = 200;
};

const char* nameOf(Core core);         ///< of the module or entity
const char* nameOf(Language language); ///< as its users call it
int memorySize(Core core);             ///< in words

std::unique_ptr<ExactModel> makeModel(Core core, const CoreBuild& build, const std::vector<quint32>& program,
                                      int waitStates = 0);

/// The naive model under the stimulus.
struct ModelRun
{
    std::unique_ptr<ExactModel> model; ///< as it was left behind the last clock or a little later
    QStringList lines;                 ///< of the events within the clocks of the stimulus
};
ModelRun runModel(Core core, const CoreBuild& build, const Stimulus& stimulus);

/// A core in one of the languages, compiled with its bench.
class HdlCore
{
public:
    /// @param source of the core; the one of this folder where left out
    HdlCore(Core core, Language language, const CoreBuild& build = {}, const QString& source = QString());

    static bool isToolThere(Language language);
    static QString toolOf(Language language);
    static QString sourceOf(Core core, Language language);

    bool isCompiled() const { return m_error.isEmpty(); }
    const QString& error() const { return m_error; }
    /// @return the lines of the bench, or one that begins with "FAILED"
    QStringList run(const Stimulus& stimulus) const;

private:
    bool call(const QString& program, const QStringList& args);
    QString file(const QString& name) const { return m_dir.filePath(name); }
    QStringList stimulusArgs(const Stimulus& stimulus) const;

    Core m_core;
    Language m_language;
    CoreBuild m_build;
    QTemporaryDir m_dir;
    QString m_error;
};

/// Nothing if the lists are equal, else the first difference with the lines before it.
std::string difference(const QString& nameOfFirst, const QStringList& first, const QString& nameOfSecond,
                       const QStringList& second);
