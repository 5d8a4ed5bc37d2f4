#include "ProjectFiles.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace nsModSrcNavi {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nsModSrcNavi::ProjectFiles", text);
}

} // namespace

ProjectFiles::sSource_t ProjectFiles::sourceAt(const QStringList& sources, int row)
{
    return {sources.value(row), sources.mid(0, row).count(sources.value(row))};
}

int ProjectFiles::rowOf(const QStringList& sources, const sSource_t& source)
{
    int row = sources.indexOf(source.file);
    for (int i = 0; i < source.nth && row >= 0; ++i)
        row = sources.indexOf(source.file, row + 1);
    return row;
}

ProjectFiles::sState_t ProjectFiles::stateOf(const QString& file) const
{
    sState_t state;
    state.isOpen = open.contains(file);
    state.isChanged = changed.contains(file);
    state.isMissing = !QFileInfo::exists(file);
    state.errors = errors.value(file);
    return state;
}

QString ProjectFiles::textOf(const sState_t& state, bool isOutput)
{
    QStringList words;
    if (state.isMissing)
        words.append(isOutput ? tr("not written yet") : tr("missing"));
    if (state.errors > 0)
        words.append(state.errors == 1 ? tr("1 error") : tr("%1 errors").arg(state.errors));
    if (state.isChanged)
        words.append(tr("changed"));
    else if (state.isOpen)
        words.append(tr("open"));
    return words.join(QLatin1String(", "));
}

} // namespace nsModSrcNavi
