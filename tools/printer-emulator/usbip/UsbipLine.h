#pragma once

#include "RemoteLine.h"
#include "UsbipMessages.h"
#include "VirtualHostController.h"

#include <optional>

/// The line to this machine's own kernel, through its virtual host controller.
class UsbipLine final : public RemoteLine
{
public:
    UsbShape shape() const override { return {}; }
    void plug(RemoteDevice &device) override;
    void unplug() override;
    bool isPlugged() const override { return m_host.has_value(); }
    void wait(std::optional<std::chrono::milliseconds> limit) override;
    void serve() override;
    void ended(const RemoteDevice::Transfer &transfer, RemoteDevice::End end) override;
    void flush() override;

private:
    bool serveOne();
    void control(const UsbipMessages::Request &request);

    RemoteDevice *m_device = nullptr;
    std::optional<VirtualHostController> m_host; ///< While the printer is plugged.
    QByteArray m_answers;
};
