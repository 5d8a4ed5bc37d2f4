#include "MainWindowFixture.h"
