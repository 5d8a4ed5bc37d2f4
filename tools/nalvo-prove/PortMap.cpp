#include "PortMap.h"

#include <QRegularExpression>

namespace nsNalvoProve {

namespace {

/// A port of the bench, and what it may be called.
struct KnownPort
{
    const char* name;
    const char* declaration; ///< of the adapter
    bool isInput;            ///< of the core
    const char* names;       ///< pattern
};

const KnownPort knownPorts[] = {
    {"clk", "input wire clk", true, "clk|clock|clk_i|core_clk"},
    {"rst_n", "input wire rst_n", true, "rst_n|reset_n|rst_ni|resetn|n_rst|n_reset"},
    {"prom_addr", "output wire [11:0] prom_addr", false, "(prom|rom|pmem|imem|instr|inst|instruction)_?(addr|address)"},
    {"prom_en", "output wire prom_en", false, "(prom|rom|pmem|imem|instr|inst)_?(en|enable|ce|rd|read|cyc)"},
    {"prom_data", "input wire [17:0] prom_data", true,
     "(prom|rom|pmem|imem|instr|inst)_?(data|din|dat|q|instr|word|in|mem)|instr|inst|instruction"},
    {"ext_addr", "output wire [ADDRESS_BITS-1:0] ext_addr", false, "(ext|io|port)_?(addr|address|id)"},
    {"ext_dout", "output wire [7:0] ext_dout", false, "(ext|io|port|ext_io|ext_mem)_?(dout|data_out|out|dat_o)"},
    {"ext_io_wr", "output wire ext_io_wr", false, "(ext_io|io|port|ext)_?(wr|write|we|write_strobe)"},
    {"ext_io_rd", "output wire ext_io_rd", false, "(ext_io|io|port|ext)_?(rd|read|re|read_strobe)"},
    {"ext_io_din", "input wire [7:0] ext_io_din", true, "(ext_io|io|port)_?(din|data_in|in|dat_i)"},
    {"ext_ready", "input wire ext_ready", true, "(ext|ext_mem|ext_io|io|mem|port)_?(ready|rdy|ack)"},
    {"intr", "input wire intr", true, "intr|interrupt|irq|int|intr_in"},
    {"intr_ack", "output wire intr_ack", false, "(intr|interrupt|irq|int)_?ack"},
};
const char* const resetHigh = "rst|reset|rst_i|reset_i";
const char* const parameters[] = {"REGISTERS", "SCRATCHPAD_SIZE", "ADDRESS_BITS"};

QString findName(const QStringList& names, const char* pattern)
{
    const QRegularExpression whole(QString("^(%1)$").arg(pattern), QRegularExpression::CaseInsensitiveOption);
    for (const QString& name : names) {
        if (whole.match(name).hasMatch())
            return name;
    }
    return QString();
}

} // namespace

PortMap::PortMap(const QString& module, const QString& code)
    : m_module(module)
{
    readPorts(code);
    readParameters(code);
    for (const KnownPort& known : knownPorts) {
        const QStringList& ports = known.isInput ? m_inputs : m_outputs;
        const QString name = ports.contains(known.name) ? known.name : findName(ports, known.names);
        if (!name.isEmpty())
            m_portOf.insert(known.name, name);
    }
    if (!m_portOf.contains("rst_n")) {
        const QString name = findName(m_inputs, resetHigh);
        m_isResetHigh = !name.isEmpty();
        if (m_isResetHigh)
            m_portOf.insert("rst_n", name);
    }
}

void PortMap::readPorts(const QString& code)
{
    static const QRegularExpression module(R"(\bmodule\s+(\w+)\b(.*?)\bendmodule\b)",
                                           QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression range(R"(\[[^\]]*\])");
    static const QRegularExpression declaration(R"(\b(input|output)\b([^;)]*?)(?=\b(?:input|output|inout)\b|[;)]))");
    static const QRegularExpression word(R"(\b[A-Za-z_]\w*\b)");
    static const QStringList keywords = {"reg", "wire", "logic", "signed", "integer"};
    for (auto modules = module.globalMatch(code); modules.hasNext();) {
        const QRegularExpressionMatch match = modules.next();
        if (match.captured(1) != m_module)
            continue;
        const QString body = match.captured(2).replace(range, " ");
        for (auto found = declaration.globalMatch(body); found.hasNext();) {
            const QRegularExpressionMatch one = found.next();
            for (auto words = word.globalMatch(one.captured(2)); words.hasNext();) {
                const QString name = words.next().captured();
                if (!keywords.contains(name))
                    (one.captured(1) == "input" ? m_inputs : m_outputs).append(name);
            }
        }
    }
}

void PortMap::readParameters(const QString& code)
{
    for (const char* name : parameters) {
        const QRegularExpression declared(QString(R"(\bparameter\b[^;)]*\b%1\s*=)").arg(name));
        if (declared.match(code).hasMatch())
            m_parameters.append(name);
    }
}

QStringList PortMap::missing() const
{
    QStringList names;
    for (const KnownPort& known : knownPorts) {
        if (!m_portOf.contains(known.name))
            names.append(known.name);
    }
    return names;
}

QByteArray PortMap::adapter() const
{
    QStringList declarations;
    QStringList connections;
    for (const KnownPort& known : knownPorts) {
        declarations.append(known.declaration);
        const bool isInverted = m_isResetHigh && m_portOf.value(known.name) == m_portOf.value("rst_n");
        connections.append(QString(".%1 (%2%3)").arg(m_portOf.value(known.name), isInverted ? "!" : "", known.name));
    }
    for (const QString& name : m_inputs) {
        if (!m_portOf.values().contains(name))
            connections.append(QString(".%1 (0)").arg(name));
    }
    QStringList settings;
    for (const QString& name : m_parameters)
        settings.append(QString(".%1 (%1)").arg(name));
    const QString text =
        "module lm8_as_known #(\n    parameter integer REGISTERS = 32,\n"
        "    parameter integer SCRATCHPAD_SIZE = 32,\n    parameter integer ADDRESS_BITS = 8\n) (\n    " +
        declarations.join(",\n    ") + "\n);\n    " + m_module + ' ' +
        (settings.isEmpty() ? QString() : "#(" + settings.join(", ") + ") ") + "part (\n        " +
        connections.join(",\n        ") + "\n    );\nendmodule\n";
    return text.toLatin1();
}

} // namespace nsNalvoProve
