#pragma once

#include <QObject>
#include <QString>

namespace nsModAsmFe {

class AsmFeMsgHndlr;

/// Numeric literals and namespace prefixes of arguments.
class AsmFeParseArg : public QObject
{
    Q_OBJECT

public:
    /// @param msgHndlr not owned; may be null
    explicit AsmFeParseArg(AsmFeMsgHndlr* msgHndlr, QObject* parent = nullptr);

    /// Does the text look like a number? Accepts more forms than toNumeric() can convert, as such texts are not valid
    /// names either.
    static bool isNumeric(const QString& text);
    /// The value of a literal in 32 bits. A form without a conversion is reported and gives 0; a value that does not
    /// fit, or more than one sign, gives 0 silently.
    int toNumeric(const QString& text) const;
    /// Cuts `ns::name` at the last "::" that has no white space before it.
    /// @return false, with nothing changed, if there is no such prefix
    static bool splitNsFromArg(QString* arg, QString* nameSpace);
    /// Selects bits of a value by the text of a range: "7:4", or "3" for bit 3 alone.
    /// @param value in: the whole value; out: the selected bits
    /// @return false if the text is not a range
    bool extractRangeFromNumeric(const QString& range, unsigned int* value) const;

private:
    AsmFeMsgHndlr* m_msgHndlr;
};

} // namespace nsModAsmFe
