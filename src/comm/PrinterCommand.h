#pragma once

#include <QtGlobal>

/// Codes of the printer commands, as they stand in the frame.
namespace PrinterCommand
{

inline constexpr quint16 wakeUp = 0xFF21;
inline constexpr quint16 wifiCapability = 0xFF81;
inline constexpr quint16 wifiConfiguration = 0xFF80;
inline constexpr quint16 address = 0xFF0F;
inline constexpr quint16 informationPage = 0xFF84;

} // namespace PrinterCommand
