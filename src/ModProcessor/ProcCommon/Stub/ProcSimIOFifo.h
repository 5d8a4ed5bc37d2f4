// Placeholder for the devices, deleted (the whole folder) by whoever brings the real ones.
#include "ProcSimIOReg8Bit.h"
