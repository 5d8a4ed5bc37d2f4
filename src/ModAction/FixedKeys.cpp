#include "FixedKeys.h"

#include <QCoreApplication>

namespace nsModAction {

namespace {

struct sFixedKey_t
{
    const char* place;
    const char* text;
    const char* keys; ///< portable
};

const sFixedKey_t fixedKeys[] = {
    {QT_TRANSLATE_NOOP("FixedKeys", "Document"), QT_TRANSLATE_NOOP("FixedKeys", "Indent, unindent"), "Tab; Shift+Tab"},
    {"Document", QT_TRANSLATE_NOOP("FixedKeys", "Insert or overwrite"), "Ins"},
    {"Document", QT_TRANSLATE_NOOP("FixedKeys", "Select a column"),
     "Alt+Shift+Left; Alt+Shift+Right; Alt+Shift+Up; Alt+Shift+Down"},
    {"Document", QT_TRANSLATE_NOOP("FixedKeys", "Select all"), "Ctrl+A"},
    {"Document", QT_TRANSLATE_NOOP("FixedKeys", "To the next word"), "Ctrl+Left; Ctrl+Right"},
    {"Document", QT_TRANSLATE_NOOP("FixedKeys", "To the start, to the end"), "Ctrl+Home; Ctrl+End"},
    {"Document", QT_TRANSLATE_NOOP("FixedKeys", "Select words"), "Ctrl+Shift+Left; Ctrl+Shift+Right"},
    {"Document", QT_TRANSLATE_NOOP("FixedKeys", "Select to the start, to the end"), "Ctrl+Shift+Home; Ctrl+Shift+End"},
    {"Document", QT_TRANSLATE_NOOP("FixedKeys", "Delete a word"), "Ctrl+Backspace; Ctrl+Del"},
    {QT_TRANSLATE_NOOP("FixedKeys", "List of words"), QT_TRANSLATE_NOOP("FixedKeys", "Take the word"), "Tab; Return"},
    {"List of words", QT_TRANSLATE_NOOP("FixedKeys", "Close"), "Esc"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Find bar"), QT_TRANSLATE_NOOP("FixedKeys", "Next hit; replace"), "Return"},
    {"Find bar", QT_TRANSLATE_NOOP("FixedKeys", "Previous hit"), "Shift+Return"},
    {"Find bar", "Close", "Esc"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Messages"), QT_TRANSLATE_NOOP("FixedKeys", "Open source or help page"), "Return"},
    {"Messages", QT_TRANSLATE_NOOP("FixedKeys", "Copy"), "Ctrl+C"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Usages"), QT_TRANSLATE_NOOP("FixedKeys", "Go to the place"), "Return"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Find in sources"), "Go to the place", "Return"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Source Navigator"), "Go to the place", "Return"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Files"), QT_TRANSLATE_NOOP("FixedKeys", "Open"), "Return"},
    {"Files", QT_TRANSLATE_NOOP("FixedKeys", "Take the source out of the project"), "Del"},
    {"Files", QT_TRANSLATE_NOOP("FixedKeys", "Move the source"), "Ctrl+Up; Ctrl+Down"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Sources in the settings"), "Take the source out of the project", "Del"},
    {"Sources in the settings", "Move the source", "Ctrl+Up; Ctrl+Down"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Settings"), "Close", "Esc"},
    {"Settings", QT_TRANSLATE_NOOP("FixedKeys", "Select another colour"), "Space"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Flags, bits, interrupt"), QT_TRANSLATE_NOOP("FixedKeys", "Toggle"), "Space"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Waves"), QT_TRANSLATE_NOOP("FixedKeys", "Shorter, longer time"), "+; -"},
    {"Waves", QT_TRANSLATE_NOOP("FixedKeys", "Move in time"), "Left; Right; PgUp; PgDown"},
    {"Waves", QT_TRANSLATE_NOOP("FixedKeys", "The beginning, the present"), "Home; End"},
    {"Waves", QT_TRANSLATE_NOOP("FixedKeys", "Take the marker away"), "Esc"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Ports of the waves"), QT_TRANSLATE_NOOP("FixedKeys", "Remove the port"), "Del"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Folders of an import"), QT_TRANSLATE_NOOP("FixedKeys", "Remove the folder"),
     "Del"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Comparison of texts"), QT_TRANSLATE_NOOP("FixedKeys", "Previous, next difference"),
     "Alt+Up; Alt+Down"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Notices"), "Close", "Esc"},
    {QT_TRANSLATE_NOOP("FixedKeys", "Work in progress"), QT_TRANSLATE_NOOP("FixedKeys", "Cancel"), "Esc"},
};

} // namespace

QVector<Shortcuts::sCommand_t> FixedKeys::rows()
{
    QVector<Shortcuts::sCommand_t> result;
    for (const sFixedKey_t& row : fixedKeys) {
        Shortcuts::sCommand_t command;
        command.menu = QCoreApplication::translate("FixedKeys", row.place);
        command.text = QCoreApplication::translate("FixedKeys", row.text);
        command.keys = QKeySequence::listFromString(QLatin1String(row.keys), QKeySequence::PortableText);
        command.standard = command.keys;
        command.isFixed = true;
        result.append(command);
    }
    return result;
}

} // namespace nsModAction
