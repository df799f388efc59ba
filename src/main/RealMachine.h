#pragma once

#include "Machine.h"

/// This computer. Made on the first call and never destroyed: a printer command may be under way until the process
/// ends. The ports begin some of their work on threads of their own at once.
Machine realMachine();
