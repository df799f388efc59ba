#pragma once

#include <libusb.h>
#include <memory>

/// Owners of what libusb hands out.

struct UnreferenceUsbDevice {
    void operator()(libusb_device *device) const { libusb_unref_device(device); }
};
using UsbDeviceReference = std::unique_ptr<libusb_device, UnreferenceUsbDevice>;

struct CloseUsb {
    void operator()(libusb_device_handle *handle) const { libusb_close(handle); }
};
using UsbHandle = std::unique_ptr<libusb_device_handle, CloseUsb>;

struct FreeUsbConfiguration {
    void operator()(libusb_config_descriptor *configuration) const { libusb_free_config_descriptor(configuration); }
};
using UsbConfiguration = std::unique_ptr<libusb_config_descriptor, FreeUsbConfiguration>;

struct FreeUsbTransfer {
    void operator()(libusb_transfer *transfer) const { libusb_free_transfer(transfer); }
};
using UsbTransfer = std::unique_ptr<libusb_transfer, FreeUsbTransfer>;
