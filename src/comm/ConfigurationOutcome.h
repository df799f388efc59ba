#pragma once

#include "PrinterAnswer.h"

/// What a finished configuration send means to its caller. That the printer cannot be reached and sent no data outranks
/// a result that it gave before; of the results `Joined` alone is a success.
/// @param result the code in the reply header, 0 when no header matched.
/// @param cause what went wrong with the exchange, if anything did.
ResultAnswer configurationOutcome(bool hasData, const std::optional<WTError> &cause, quint16 result);
