#pragma once

#include "FrameLayout.h"

#include <QByteArray>

/// A command frame without payload, as the emulated printer takes it.
inline QByteArray commandFrame(quint16 command)
{
    const QByteArray header = QByteArray::fromHex("00AC") + char(command >> 8) + char(command) + QByteArray(12, '\0');
    return FrameLayout::universalExit.toByteArray() + FrameLayout::enterLanguage.toByteArray() + header +
           FrameLayout::universalExit.toByteArray();
}
