#pragma once

#include <filesystem>

/// A device node of the emulated usbfs: a symbolic link in the bed's own /dev to a pseudo-terminal, since a terminal
/// polls as a usbfs node does: writable while output may flow (a transfer can be collected), in error once its other
/// side is closed (the device is gone).
class UsbfsNode
{
public:
    /// Creates the node. Throws std::system_error.
    explicit UsbfsNode(std::filesystem::path path);
    /// Deletes it; whoever has it open sees the device gone.
    ~UsbfsNode();
    UsbfsNode(const UsbfsNode &) = delete;
    UsbfsNode &operator=(const UsbfsNode &) = delete;

    void setReady(bool ready);
    /// Whether the node may be opened. The rule lives in its mode bits, which UsbfsGuard enforces for root as well.
    void setPermitted(bool permitted);

private:
    std::filesystem::path m_path;
    int m_master = -1;
    int m_slave = -1;
    bool m_ready = true; ///< As a terminal is when it is new.
};
