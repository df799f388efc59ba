#pragma once

#include "ModelIdentity.h"
#include "UsbShape.h"

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

/// What a device answers on its control endpoint.
namespace ControlPipe
{
struct Setup {
    static constexpr qsizetype size = 8;

    quint8 requestType = 0;
    quint8 request = 0;
    quint16 value = 0;
    quint16 index = 0;
    quint16 length = 0;

    /// `bytes` holds `size` bytes.
    static Setup parse(QByteArrayView bytes);

    bool asksForDeviceID() const;

    /// The interface that the request is addressed to, which usbfs wants claimed first. Absent when no claim is needed:
    /// other recipients, and the question for the device ID if its index names a setting of the printer class
    /// (interface in the high byte, setting in the low byte).
    std::optional<int> interfaceToClaim(const UsbShape &shape) const;
};

/// The data stage, cut to the length asked for; absent for a stall.
std::optional<QByteArray> answer(const Setup &setup, const ModelIdentity &identity, const UsbShape &shape);
} // namespace ControlPipe
