#pragma once

#include "UsbHandles.h"

#include <QString>
#include <optional>

/// What a device answers over its control pipe. Each question waits at most a second; absent when there is no answer.
class DeviceQuestions
{
public:
    /// A device that may not be opened answers nothing.
    explicit DeviceQuestions(libusb_device *device);

    std::optional<QString> text(quint8 descriptorIndex) const;

    /// The IEEE 1284 device ID of a printer interface. Absent also while another program or driver holds the interface;
    /// empty when the device refuses.
    std::optional<QString> deviceID(int interface) const;

private:
    UsbHandle m_handle;
};
