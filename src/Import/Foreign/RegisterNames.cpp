#include "RegisterNames.h"

namespace nsImport {

QString RegisterNames::keyOf(const QString& name) const
{
    // The original names are written in any case.
    return m_dialect->registerOf(name) >= 0 ? name.toLower() : name;
}

int RegisterNames::registerOf(const QString& name) const
{
    const auto renamed = m_names.constFind(keyOf(name));
    if (renamed != m_names.constEnd())
        return renamed.value();
    const int original = m_dialect->registerOf(name);
    return original >= 0 && !m_free.at(original) ? original : -1;
}

int RegisterNames::rename(const QString& from, const QString& to)
{
    const int number = registerOf(from);
    if (number < 0)
        return -1;
    const int other = registerOf(to);
    if (other >= 0 && other != number)
        return -2;
    if (m_names.remove(keyOf(from)) == 0)
        m_free[number] = true;
    if (m_dialect->registerOf(to) == number)
        m_free[number] = false;
    else
        m_names.insert(keyOf(to), number);
    return number;
}

} // namespace nsImport
