#include "ProveResult.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace nsNalvoProve {

namespace {

const int eventColumn = 26;
const size_t valuesPerLine = 16;

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-prove", text);
}

QString hexText(int value)
{
    return value < 0 ? QStringLiteral("??") : QString::number(value, 16).toUpper().rightJustified(2, '0');
}

QString registerName(size_t index, size_t count, int banks)
{
    const size_t perBank = count / size_t(banks);
    const QString number = QString::number(index % perBank);
    return banks > 1 ? tr("register %1 of bank %2").arg(number, QString(QChar('A' + int(index / perBank))))
                     : tr("register %1").arg(number);
}

QString valuesDiffer(const QString& what, int simulation, int core)
{
    return tr("%1 is %2 in the simulation, %3 in the core").arg(what, hexText(simulation), hexText(core));
}

/// The values of both sides, those of the core where they differ below.
void addValues(QString* text, const QString& name, const std::vector<int>& ours, const std::vector<int>& others)
{
    for (size_t first = 0; first < ours.size(); first += valuesPerLine) {
        QString line;
        QString below;
        bool isDifferent = false;
        for (size_t i = first; i < std::min(first + valuesPerLine, ours.size()); ++i) {
            const bool differs = i < others.size() && others[i] != ours[i];
            line += ' ' + hexText(ours[i]);
            below += ' ' + (differs ? hexText(others[i]) : QStringLiteral("  "));
            isDifferent = isDifferent || differs;
        }
        *text += QString("  %1 %2:%3\n").arg(name, hexText(int(first)), line);
        if (isDifferent)
            *text += QString("%1%2\n").arg(tr("core").leftJustified(name.size() + 6), below);
    }
}

QJsonArray valuesOf(const std::vector<int>& values)
{
    QJsonArray array;
    for (const int value : values)
        array.append(value < 0 ? QJsonValue() : QJsonValue(value));
    return array;
}

QJsonValue flagOf(int flag)
{
    return flag < 0 ? QJsonValue() : QJsonValue(flag);
}

QJsonObject sideOf(const QStringList& events, const ProveState& state)
{
    return {{"events", QJsonArray::fromStringList(events)},
            {"registers", valuesOf(state.registers)},
            {"scratchpad", valuesOf(state.scratchpad)},
            {"carry", flagOf(state.carry)},
            {"zero", flagOf(state.zero)}};
}

} // namespace

QString stateDifference(const ProveState& simulation, const ProveState& core, int banks)
{
    for (size_t i = 0; i < std::min(simulation.registers.size(), core.registers.size()); ++i) {
        if (simulation.registers[i] != core.registers[i])
            return valuesDiffer(registerName(i, simulation.registers.size(), banks), simulation.registers[i],
                                core.registers[i]);
    }
    for (size_t i = 0; i < std::min(simulation.scratchpad.size(), core.scratchpad.size()); ++i) {
        if (simulation.scratchpad[i] != core.scratchpad[i])
            return valuesDiffer(tr("scratchpad cell %1").arg(hexText(int(i))), simulation.scratchpad[i],
                                core.scratchpad[i]);
    }
    if (core.carry >= 0 && core.carry != simulation.carry)
        return valuesDiffer(tr("C"), simulation.carry, core.carry);
    if (core.zero >= 0 && core.zero != simulation.zero)
        return valuesDiffer(tr("Z"), simulation.zero, core.zero);
    return QString();
}

QByteArray ProveResult::text() const
{
    const QString counts = (instructions == 1 ? tr("1 instruction") : tr("%1 instructions").arg(instructions)) + ", " +
                           (events == 1 ? tr("1 event") : tr("%1 events").arg(events)) + ", ";
    if (isEqual)
        return (counts + tr("all equal") + '\n').toLocal8Bit();
    QString text = tr("different%1: %2\n").arg(place.isEmpty() ? QString() : tr(" at %1").arg(place), what);
    text += counts + tr("equal before that") + '\n';
    if (!origin.isEmpty())
        text +=
            tr("The states differ from clock %1 on, after %2: %3")
                .arg(QString::number(originClock), originPlace.isEmpty() ? tr("an empty word") : originPlace, origin) +
            '\n';
    text += '\n';
    text += "  " + tr("simulation").leftJustified(eventColumn) + tr("core") + '\n';
    const int rows = std::max(simulationEvents.size(), coreEvents.size());
    for (int i = 0; i < rows; ++i) {
        const QString ours = simulationEvents.value(i, tr("nothing"));
        const QString others = coreEvents.value(i, tr("nothing"));
        text += (ours == others ? "  " : "> ") + ours.leftJustified(eventColumn) + others + '\n';
    }
    text += '\n' + tr("State at clock %1, the values of the core below where they differ:").arg(stateClock) + '\n';
    const size_t perBank = simulationState.registers.size() / size_t(banks);
    for (int bank = 0; bank < banks; ++bank) {
        const auto part = [&](const std::vector<int>& all) {
            return all.size() < perBank * size_t(banks)
                       ? std::vector<int>()
                       : std::vector<int>(all.begin() + long(perBank) * bank, all.begin() + long(perBank) * (bank + 1));
        };
        addValues(&text, banks > 1 ? tr("bank %1   ").arg(QChar('A' + bank)) : tr("registers"),
                  part(simulationState.registers), part(coreState.registers));
    }
    addValues(&text, tr("cells    "), simulationState.scratchpad, coreState.scratchpad);
    text += QString("  C %1, Z %2").arg(simulationState.carry).arg(simulationState.zero);
    if (coreState.carry >= 0)
        text += tr("; in the core C %1, Z %2").arg(coreState.carry).arg(coreState.zero);
    return (text + '\n').toLocal8Bit();
}

QByteArray ProveResult::json() const
{
    QJsonObject object{{"result", isEqual ? "equal" : "different"},
                       {"instructions", instructions},
                       {"events", events},
                       {"clocks", clocks},
                       {"core", core},
                       {"tool", tool},
                       {"compared", QJsonArray::fromStringList(compared)},
                       {"notCompared", QJsonArray::fromStringList(notCompared)},
                       {"end", end.isEmpty() ? QJsonValue() : QJsonValue(end)}};
    const QJsonObject from{{"what", origin},
                           {"place", originPlace.isEmpty() ? QJsonValue() : QJsonValue(originPlace)},
                           {"clock", originClock}};
    if (!isEqual)
        object.insert("difference", QJsonObject{{"what", what},
                                                {"origin", origin.isEmpty() ? QJsonValue() : QJsonValue(from)},
                                                {"place", place.isEmpty() ? QJsonValue() : QJsonValue(place)},
                                                {"stateClock", stateClock},
                                                {"simulation", sideOf(simulationEvents, simulationState)},
                                                {"core", sideOf(coreEvents, coreState)}});
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace nsNalvoProve
