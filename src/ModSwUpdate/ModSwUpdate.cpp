#include "ModSwUpdate.h"

namespace nsModSwUpdate {

ModSwUpdate::ModSwUpdate(QObject* parent)
    : QObject(parent)
{
}

} // namespace nsModSwUpdate
