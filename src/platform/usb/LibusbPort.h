#pragma once

#include "UsbPort.h"

class TimePort;

/// The USB bus through libusb.
///
/// One thread, started with first use, handles libusb's events and hotplug and calls the watcher. Facts of a device
/// come from sysfs, which everybody may read; only the device ID, if it is not there, is asked of the device. A
/// computer without USB has an empty bus; each `watch`, `devices` and `open` looks again.
class LibusbPort final : public UsbPort
{
public:
    /// @param time outlives the port; connections pause between attempts and listen for silence by it.
    explicit LibusbPort(TimePort &time);
    /// All connections are gone by then. Not on the watch thread.
    ~LibusbPort() override;
    LibusbPort(const LibusbPort &) = delete;
    LibusbPort &operator=(const LibusbPort &) = delete;

    void watch(std::vector<quint16> vendorIDs, ListChanged changed) override;
    void stopWatching() override;
    UsbDeviceList devices(const std::vector<quint16> &vendorIDs) override;
    WTResult<std::unique_ptr<UsbConnection>> open(const UsbDevice &device) override;
    std::optional<WTError> obstacle(const UsbDevice &device) override;

private:
    struct State;
    std::unique_ptr<State> m_state;
};
