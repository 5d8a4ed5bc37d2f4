#pragma once

#include "SymbolTable.h"
#include "TextPlace.h"

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

class ModAsmFePluginIf;
class ModEditorPluginIf;
class ModSourcesPluginIf;

namespace nsModEditor {
class EditorDocument;
}

namespace nsModSymbols {

/// The names in the sources of the project, as these stand now in documents and files. Reads only what has changed
/// since it was asked last.
class ProgramNames
{
public:
    /// May a look-up take what was read before the last edits, where the sources are large?
    enum eCost_t { eExact, eQuick };

    /// Reads the hooks at each call; each of them may be missing. Not owned.
    ProgramNames(const ModAsmFePluginIf* assembler, const ModEditorPluginIf* editor, const ModSourcesPluginIf* sources);

    /// The table of now; it stays until the next call.
    const nsModAsmFe::SymbolTable& table();
    /// Without a look at documents and files: the table that was made last, whose values are those of the last run.
    const nsModAsmFe::SymbolTable& lastTable();
    /// Index of the source, -1 if it is none.
    int fileOf(const QString& path);
    /// The name at a place of a document; -1 if there is none. What only the text has, such as a name in a line that a
    /// condition skips, is found by its name alone.
    int symbolAt(const nsModEditor::EditorDocument* document, int line, int column, eCost_t cost = eExact);
    /// The namespace at a line of a document.
    QString nameSpaceAt(const nsModEditor::EditorDocument* document, int line);
    sTextPlace placeOf(const nsModAsmFe::sSymbolPlace& place);
    /// The text of a line.
    QString lineText(int file, int line);

    /// Documents were opened or closed.
    void documentsChanged() { m_hasTable = false; }
    /// A run has ended: notes what it has read.
    void runEnded();
    /// Why the last run says nothing about the present text, as a sentence; empty if it does.
    QString staleReason();
    void clear();

private:
    struct sVersion
    {
        const void* document = nullptr;
        int revision = -1;
        QDateTime time;
        qint64 size = -1;

        bool operator==(const sVersion& other) const
        {
            return document == other.document && revision == other.revision && time == other.time && size == other.size;
        }
    };

    nsModEditor::EditorDocument* documentOf(const QString& path) const;
    QStringList sources() const;
    sVersion versionOf(const QString& path) const;
    static sVersion versionOnDisk(const QString& path);
    QString textOf(const QString& path) const;
    int fileOf(const QString& path, eCost_t cost);
    bool isStill(const nsModAsmFe::sSymbolPlace& place, const QString& line) const;

    const ModAsmFePluginIf* m_assembler;
    const ModEditorPluginIf* m_editor;
    const ModSourcesPluginIf* m_sources;
    nsModAsmFe::SymbolTable m_table;
    QVector<sVersion> m_versions; ///< of the sources of the table
    QVector<QStringList> m_lines; ///< of the sources of the table; empty until a line is asked for
    QVector<QString> m_texts;
    bool m_hasTable = false;
    QHash<QString, sVersion> m_assembled; ///< what the last run has read, by path
    QStringList m_assembledFiles;
};

} // namespace nsModSymbols
