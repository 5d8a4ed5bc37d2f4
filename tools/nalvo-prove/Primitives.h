#pragma once

#include "CoreSource.h"

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

namespace nsNalvoProve {

/// The models of the primitives of the vendor's devices that a core may be made of, and what a core takes of them.
class Primitives
{
public:
    /// Finds out what a core needs: what it names and does not declare itself.
    Primitives(const CoreKind& kind, const CoreSource& source);

    /// Names of the models, in alphabetical order.
    const QStringList& names() const { return m_names; }
    bool isNeeded() const { return !m_text.isEmpty(); }
    /// In Verilog the modules that are needed, in VHDL all of them, for libraries of their own.
    const QByteArray& text() const { return m_text; }
    /// Libraries of VHDL that the core takes them from.
    const QStringList& libraries() const { return m_libraries; }

private:
    void takeModules(const QByteArray& models, QSet<QString> words);

    QStringList m_names;
    QStringList m_libraries;
    QByteArray m_text;
};

} // namespace nsNalvoProve
