#pragma once

#include "LibusbPort.h"
#include "PrinterOperation.h"
#include "ResourceFolder.h"
#include "UsbfsBed.h"
#include "VirtualTime.h"

/// The manager on a machine with one emulated printer: real library, real libusb, virtual time. One per process.
class PrinterBed
{
public:
    PrinterBed();

    /// Lets the search find the printer and ends it. @return whether it was found.
    bool discover();
    /// The URI of the printer found, also while it is unplugged.
    QString uri() const { return m_uri; }

    /// Runs the program until `done`, in virtual time.
    bool runUntil(const std::function<bool()> &done);

    /// Runs the operation on the printer found until it has answered.
    std::shared_ptr<Answer> perform(Operation operation);

    /// As new: plugged, free, permitted, with this script.
    void reset(const PrinterScript &script = {});

    ResourceFolder resources;
    VirtualTime time;
    UsbfsBed bus{time};

private:
    LibusbPort m_usb{time};
    QString m_uri;
};
