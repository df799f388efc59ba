#pragma once

#include "WifiConfigurationPayload.h"

#include <QString>

class QWidget;

/// What a printer can take as a network's password, whatever the network itself allows.
namespace PrinterPassword
{

inline constexpr qsizetype maximumBytes = WifiConfigurationPayload::passwordLimit; ///< In UTF-8.

bool isTooLong(const QString &password);

/// One sentence that names the limit, in the interface language.
QString limitText();

/// Logs the refusal, without the password, and says on `window` what the limit is.
void refuse(QWidget *window);

} // namespace PrinterPassword
