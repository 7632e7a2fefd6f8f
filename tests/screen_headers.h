// What every test of the screens includes, compiled once for all of them.
#pragma once

#include "program_test.h"
