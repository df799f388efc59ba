#pragma once

#include "PrinterModel.h"
#include "TimePort.h"
#include "UsbPort.h"

#include <memory>

class EmulatedBus;

/// The machine's USB bus with one emulated printer on it, in process and without a kernel or a USB library: the same
/// printer model, faults and times as on the emulated usbfs, behind the program's own port. All operations may be
/// called on any thread.
class EmulatedUsb : public UsbPort
{
public:
    /// The printer is on the bus from the start unless its script says otherwise. `time` outlives this object.
    EmulatedUsb(TimePort &time, PrinterModel printer);
    ~EmulatedUsb() override;

    void plug();
    void unplug();
    PrinterRecord record() const;
    void setScript(PrinterScript script);

    void watch(std::vector<quint16> vendorIDs, ListChanged changed) override;
    void stopWatching() override;
    UsbDeviceList devices(const std::vector<quint16> &vendorIDs) override;
    WTResult<std::unique_ptr<UsbConnection>> open(const UsbDevice &device) override;
    std::optional<WTError> obstacle(const UsbDevice &device) override;

private:
    std::shared_ptr<EmulatedBus> m_bus;
};
