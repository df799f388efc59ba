#pragma once

#include "HostCapabilities.h"

/// What this host offers. Asked once at start-up, before any library is used.
HostCapabilities detectHostCapabilities();
