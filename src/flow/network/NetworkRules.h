#pragma once

#include "WiFiConfigurationPayload.h"

#include <QString>

/// What may stand in the two fields of an entry screen, and what a printer takes of it.
namespace NetworkRules
{

inline constexpr qsizetype maximumNameLength = 32;     ///< UTF-16 units that the name field takes.
inline constexpr qsizetype maximumNameBytes = 32;      ///< In UTF-8 (IEEE 802.11-2020, 9.4.2.2).
inline constexpr qsizetype maximumPasswordLength = 64; ///< UTF-16 units that the password field takes.
/// In UTF-8: what a printer takes, whatever the network itself allows.
inline constexpr qsizetype maximumPasswordBytes = WiFiConfigurationPayload::passwordLimit;

QString cutName(const QString &name);
QString cutPassword(const QString &password);

/// Whether the password field takes the whole text: at most 64 characters, each of them printable ASCII or one of ¥ € £
/// •.
bool isVailePassword(const QString &password);
/// What the password field is to hold after an edit: `typed`, cut to the field's length, or `lastValid` when the field
/// does not take that.
QString passwordAfterEdit(const QString &typed, const QString &lastValid);

/// Whether the name is empty or nothing but blanks.
bool isNoName(const QString &name);
/// Whether a printer can be told to join a network of this name.
bool isNameUsable(const QString &name);
/// One sentence in the interface language that says why not; empty for a usable name and for none at all.
QString nameError(const QString &name);

bool isPasswordTooLong(const QString &password);
/// One sentence that names the limit, in the interface language.
QString passwordLimitText();
/// One sentence in the interface language that says why a printer cannot be told this password, without it; empty when
/// it can.
QString passwordError(const QString &password);

} // namespace NetworkRules
