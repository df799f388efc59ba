#pragma once

#include <QString>
#include <optional>

/// Text that strangers choose: the name of a network in the air, what a device says of itself.

/// `text` as log and screen may show it: each control character, line or paragraph separator and direction mark stands
/// as its number, "\u000A", so that it neither breaks a line nor turns around or hides what stands beside it. For eyes
/// only: two different texts may look the same.
QString visibleText(const QString &text);
/// The same; absent stays absent.
std::optional<QString> visibleText(const std::optional<QString> &text);

/// Whether `text` may stand in a printer's job. One with a character from U+0000 to U+001F or with U+007F may not: it
/// could end the job and begin one of its own.
bool isSendable(const QString &text);
