#pragma once

#include "WTError.h"

#include <libusb.h>

class TimePort;

/// When a cable is pulled, transfers fail first, as on a bad line or with a stall; the hub notices up to half a second
/// later, and only then does the device leave the bus. So after such an error this waits, for at most a second, to see
/// whether the device leaves.
/// @param what begins the message, as in the error.
/// @return "unplugged" if the device has left, else the error.
WTError unlessUnplugged(const WTError &error, const QString &what, TimePort &time, libusb_device_handle *handle,
                        int interface);
