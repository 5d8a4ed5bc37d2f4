#include "AsmOutputRequest.h"

#include "TargetKinds.h"

#include <QRegularExpression>
#include <QStringList>

namespace nsNalvoAsm {

using namespace nsModAsmFe;

namespace {

const QString placeholder = QStringLiteral("{DEVICE}");

/// What needs a template is a setting of a project.
bool canBeAsked(const sTargetKind_t& kind)
{
    return !kind.hasTemplate;
}

} // namespace

QString AsmOutputRequest::kindNames()
{
    QStringList names;
    for (const sTargetKind_t& row : targetKinds()) {
        if (canBeAsked(row))
            names.append(QLatin1String(row.key));
    }
    return names.join(QStringLiteral(", "));
}

QString AsmOutputRequest::parse(const QString& text)
{
    const int equals = text.indexOf('=');
    target.outputFile = text.mid(equals + 1);
    if (equals < 0 || target.outputFile.isEmpty())
        return tr("An output is KIND=FILE: %1").arg(text);
    if (target.outputFile == QLatin1String("-"))
        return tr("An output goes to a file and not to standard output: %1").arg(text);
    const QStringList parts = text.left(equals).split(':');
    const sTargetKind_t* found = nullptr;
    for (const sTargetKind_t& row : targetKinds()) {
        if (canBeAsked(row) && parts.first() == QLatin1String(row.key))
            found = &row;
    }
    if (found == nullptr)
        return tr("Unknown kind of output: %1. There are %2").arg(parts.first(), kindNames());
    kind = found->kind;
    target.en = true;
    int layouts = 0;
    int widths = 0;
    for (const QString& option : parts.mid(1)) {
        const QString problem = parseOption(option);
        if (!problem.isEmpty())
            return problem;
        int& number = found->layoutNames().contains(option) ? layouts : widths;
        if (++number > 1)
            return tr("An output has one layout and one number of bits: %1").arg(text);
    }
    return QString();
}

/// A layout, or a number of bits.
QString AsmOutputRequest::parseOption(const QString& option)
{
    const sTargetKind_t& row = targetKind(kind);
    const int layout = row.layoutNames().indexOf(option);
    if (layout >= 0) {
        target.layout = layout;
        return QString();
    }
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,9}$"));
    if (!row.isImage || !digits.match(option).hasMatch()) {
        const QStringList names =
            row.layoutNames() + (row.isImage ? QStringList(tr("a number of bits")) : QStringList());
        return names.isEmpty() ? tr("%1 has no options: %2").arg(QLatin1String(row.key), option)
                               : tr("Unknown option of %1: %2. Possible: %3")
                                     .arg(QLatin1String(row.key), option, names.join(QStringLiteral(", ")));
    }
    target.wordWidth = option.toInt();
    if (target.wordWidth < 1 || target.wordWidth > TargetFile::maxWordWidth)
        return tr("A word has 1 to %1 bits: %2").arg(TargetFile::maxWordWidth).arg(option);
    return QString();
}

bool AsmOutputRequest::isForEachMemory() const
{
    return target.outputFile.contains(placeholder);
}

QString AsmOutputRequest::fileOf(const QString& device) const
{
    // A source names the devices, and may come from elsewhere: no name leads to another folder.
    static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9_-]+"));
    QString name = device.section(QStringLiteral("::"), 1);
    name.replace(others, QStringLiteral("_"));
    return QString(target.outputFile).replace(placeholder, name);
}

} // namespace nsNalvoAsm
