#pragma once

#include "ProveOptions.h"

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

namespace nsNalvoProve {

/// What is known of a core from outside.
struct CoreKind
{
    enum eCore_t { corePicoBlaze3, corePicoBlaze6, coreMico8 };

    eCore_t core;
    const char* name;  ///< of the module or entity; the bench has it in its name
    const char* shown; ///< of the processor
    int fullSize;      ///< words that it can address
    QStringList ports; ///< that the bench connects

    /// @param section of the project's settings that the processor has
    /// @return null for a processor that is not known
    static const CoreKind* find(const QString& section);
};

/// The source of a core: the files that it takes, in one language.
class CoreSource
{
public:
    using eLanguage_t = ProveOptions::eLanguage_t;

    /// Looks for the source of a core.
    /// @param path file or folder
    /// @return why there is none that can be used; empty if there is one
    QString find(const CoreKind& kind, const QString& path, eLanguage_t language);

    eLanguage_t language() const { return m_language; }
    bool isVhdl() const { return m_language == ProveOptions::languageVhdl; }
    /// The one with the core comes first. Absolute paths.
    const QStringList& files() const { return m_files; }
    /// All names in these files, without comments and strings; of VHDL in lower case, as the next two.
    const QSet<QString>& words() const { return m_words; }
    /// Modules, entities and packages of these files.
    const QSet<QString>& declared() const { return m_declared; }
    /// VHDL: what the files instantiate.
    const QSet<QString>& instances() const { return m_instances; }
    /// VHDL: libraries that they name, without those that are always there.
    const QStringList& libraries() const { return m_libraries; }
    /// Verilog: a module lm8_as_known between bench and core, whose ports have other names; empty where none is needed.
    const QByteArray& adapter() const { return m_adapter; }
    /// Names of the flags in the core; empty where it has none that are known.
    const QString& carryName() const { return m_carryName; }
    const QString& zeroName() const { return m_zeroName; }

private:
    /// A file with what it declares.
    struct sFile_t
    {
        QString path;
        QString text; ///< without comments and strings; VHDL in lower case
        bool isVhdl = false;
        QStringList units; ///< modules, entities and packages
    };

    QString read(const QString& path);
    QString readFolder(const QString& path);
    QString readFile(const QString& path, bool isNamed);
    QString choose(const CoreKind& kind, const QString& path, eLanguage_t language);
    QString take(const CoreKind& kind, const sFile_t& top);
    void follow(const sFile_t& top);
    void findFlags(const QString& text);
    QString chooseMapped(const CoreKind& kind, bool isVhdl);
    void takeFile(const sFile_t& top);
    static QString lacks(const QString& unit, const sFile_t& file, const CoreKind& kind, const QStringList& ports);
    static QStringList missingPorts(const CoreKind& kind, const sFile_t& top);

    QList<sFile_t> m_read;
    eLanguage_t m_language = ProveOptions::languageAny;
    QStringList m_files;
    QSet<QString> m_words;
    QSet<QString> m_declared;
    QSet<QString> m_instances;
    QStringList m_libraries;
    QByteArray m_adapter;
    QString m_carryName;
    QString m_zeroName;
};

} // namespace nsNalvoProve
