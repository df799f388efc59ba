#pragma once

#include <QString>

/// The text of a literal in the source, made once for the whole process: a message that keeps its format and its place
/// then pays for no conversion, no memory and no counting. Any other text gives the same result, as long as the process
/// logs no more than a few thousand different ones. Any thread, also one that is ending.
QString literalText(const char *utf8);
