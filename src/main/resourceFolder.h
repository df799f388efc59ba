#pragma once

#include <QString>

/// The resource folder that belongs to the running program: `share/wifitool` beside the folder of its executable. Found
/// without an application object.
QString resourceFolder();
