#include "ProcSimIO.h"
