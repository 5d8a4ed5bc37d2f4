#pragma once

#include "AsmFeConfig.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace nsModAsmFe {

/// A place in the sources that a table of contents shows.
struct AsmNaviTag
{
    enum eType_t { typeLabel, typeHardware, typeConstant, typeSeparator, typeGroupBegin, typeGroupEnd };

    eType_t type = typeLabel;
    QString filePath;      ///< absolute
    int line = 0;          ///< counted from 0
    QString title;         ///< empty for the end of a group
    QString lineRef;       ///< text that finds the line again after edits; empty for a label, whose title does
    bool disabled = false; ///< the line lies in a conditional branch that is skipped
};

/// An output file of a run outside of the folder of the project file.
struct AsmOutsideFile
{
    QString file;          ///< absolute, without links
    bool bySource = false; ///< a source names it, not the project's settings
};

/// Whoever shows what a run finds. Every operation may be left out: a run without a listener shows the same messages.
///
/// The calls come from within Assembler::run(), in the order of the stages. Elements of the program may be read, and
/// must not be kept beyond programDropped().
class AsmRunListener
{
public:
    virtual ~AsmRunListener() = default;

    /// The run still works; called often enough for a busy cursor.
    /// @param lines lines of the sources that were read so far; 0: the sources are read
    /// @return false ends the run: what it has assembled so far is not used
    virtual bool runGoesOn(int lines)
    {
        Q_UNUSED(lines)
        return true;
    }
    /// The elements of the last run are about to be deleted.
    virtual void programDropped() {}
    /// Does anybody want tags? They cost time.
    virtual bool wantsNaviTags() { return false; }
    virtual void naviTagFound(const AsmNaviTag&) {}
    /// Every source is read, with or without errors.
    virtual void naviTagsComplete() {}
    /// The sources set the editor's tabulator width, in columns.
    virtual void tabIndentSet(int) {}
    /// Every instruction has its address: the editor can show them.
    virtual void addressesMapped() {}
    /// The program is assembled and checked; only the outputs are missing.
    virtual void programComplete() {}
    /// The words for completion are to be renewed, then the insertion menu, then the device maps. Each of the three
    /// stands in a message group of its own.
    virtual void refreshTextCompleter() {}
    virtual void refreshInsertionMenu() {}
    virtual void refreshIODevViewer() {}
    /// The run has failed: the devices hold nothing worth showing.
    virtual void runFailed() {}
    /// The run is about to write these files. Whoever wrote the project has named them, which need not be the user.
    /// @return those that must not be written
    virtual QStringList refusedOutputs(const QVector<AsmOutsideFile>&) { return {}; }
    /// The output files are written from now on, which is not cancelled: what runGoesOn() returns does not matter any
    /// more, so that the files are all of one run.
    virtual void outputsBegin() {}
    /// What the user can do about a refused file, for the message.
    virtual QString refusalHint() { return QString(); }
    /// The output files are written: external programs that belong to the event may run.
    /// @return false if one of them has failed
    virtual bool runExternalPrograms(AsmFeConfig::eAssembleEvent_t) { return true; }
    /// The list of constants is to be shown anew: a run for outputs has ended, with or without success but not for
    /// want of a processor, or the program is gone.
    virtual void refreshEquList() {}
};

} // namespace nsModAsmFe
