#pragma once

#include "PrinterPipes.h"
#include "UsbShape.h"
#include "UsbfsInterfaces.h"
#include "UsbfsNode.h"
#include "UsbfsSysfs.h"
#include "UsbfsUrb.h"

#include <list>
#include <memory>
#include <optional>

/// One emulated printer as usbfs shows it: its node, its interfaces, its transfers. The bus that it hangs on guards all
/// of its operations by one lock.
class UsbfsDevice final : private PrinterPipes::Listener
{
public:
    using Instant = std::chrono::steady_clock::time_point;

    /// What the device needs of its bus. Called with the bus locked, except `serve`.
    class Bus
    {
    public:
        virtual Instant now() const = 0;
        /// Locks the bus and lets the device handle a request: 0 or above, or a negative errno.
        virtual int serve(UsbfsDevice &device, UMockdevIoctlClient *client) = 0;
        /// The device has left: its node and its folders in sysfs have to be removed.
        virtual void left(UsbfsDevice &device) = 0;
        virtual void received(UsbfsDevice &device, const ReceivedFrame &frame) = 0;
        virtual void scheduled(UsbfsDevice &device, const BusEvent &event) = 0;

    protected:
        ~Bus() = default;
    };

    UsbfsDevice(Bus &bus, const QString &root, int number, PrinterModel model, UsbShape shape);
    ~UsbfsDevice();

    PrinterModel &model() { return m_pipes.model(); }
    const PrinterModel &model() const { return m_pipes.model(); }
    const UsbShape &shape() const { return m_shape; }
    const UsbfsSysfs &sysfs() const { return m_sysfs; }
    int number() const { return m_number; }
    UMockdevIoctlBase *handler() const { return m_handler.get(); }

    void arrive(int deviceNumber);
    void leave();
    /// Unplugs the device as the script says: at once, or with failing transfers first.
    void pullPlug();
    bool isPlugged() const { return m_node != nullptr; }
    /// 0 before the first arrival.
    int deviceNumber() const { return m_deviceNumber; }

    /// The answer to one request of a program: 0 or above, or a negative errno.
    int handle(UMockdevIoctlClient *client);
    /// Does what is due.
    void pump();
    std::optional<Instant> nextDue(Instant now) const;
    /// How often it was asked for its device ID.
    int deviceIDQuestions() const { return m_deviceIDQuestions; }
    /// Whether a program has yet to collect a finished transfer or reply bytes that are due.
    bool owesSomething() const;

    const UsbfsInterfaces &interfaces() const { return m_interfaces; }
    void setKernelDriver(bool present);
    void setHeld(bool held);
    void setPermitted(bool permitted);
    /// Shows in sysfs who has the interfaces.
    void interfacesChanged();

private:
    void received(const ReceivedFrame &frame) override;
    void scheduled(const BusEvent &event) override;

    static gboolean onRequest(UMockdevIoctlBase *, UMockdevIoctlClient *client, gpointer self);

    int submit(UMockdevIoctlClient *client);
    int permitTransfer(const UsbfsUrb &urb, UMockdevIoctlClient *client);
    int reap(UMockdevIoctlClient *client);
    int discard(UMockdevIoctlClient *client);
    /// False when the device never answers.
    bool answerControl(UsbfsUrb &urb);

    using Urbs = std::list<UsbfsUrb>;
    void dropOrphans();
    void pumpOut();
    void pumpIn();
    /// Whether the transfer is finished, so that the next one's turn has come.
    bool settle(Urbs::iterator urb, PrinterPipes::Outcome outcome);
    Urbs::iterator nextOut();
    void complete(Urbs::iterator urb, int status);

    Bus &m_bus;
    const int m_number;
    const UsbShape m_shape;
    const UsbfsSysfs m_sysfs;
    const std::filesystem::path m_root;
    GObjectRef<UMockdevIoctlBase> m_handler;

    std::unique_ptr<UsbfsNode> m_node;
    int m_deviceNumber = 0;
    UsbfsInterfaces m_interfaces;
    bool m_permitted = true;
    std::optional<Instant> m_leaves; ///< The plug has been pulled; until then transfers end with `m_failure`.
    int m_failure = 0;               ///< A negative errno.
    int m_deviceIDQuestions = 0;

    Urbs m_pending;
    Urbs m_done;
    PrinterPipes m_pipes;
};
