#pragma once

#include <QtGlobal>
#include <array>

/// The command codes that the emulated printer answers.
namespace EmulatedCommand
{
inline constexpr quint16 WakeUp = 0xFF21;
inline constexpr quint16 Capability = 0xFF81;
inline constexpr quint16 Configuration = 0xFF80;
inline constexpr quint16 Address = 0xFF0F;
inline constexpr quint16 InformationPage = 0xFF84;

inline constexpr std::array all{WakeUp, Capability, Configuration, Address, InformationPage};
} // namespace EmulatedCommand
