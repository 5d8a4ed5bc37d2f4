#include "ModFonts.h"

namespace nsModFonts {

ModFonts::ModFonts(QObject* parent)
    : QObject(parent)
{
}

} // namespace nsModFonts
