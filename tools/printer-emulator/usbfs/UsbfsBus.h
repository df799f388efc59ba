#pragma once

#include "Agenda.h"
#include "HolderProcess.h"
#include "SerialQueue.h"
#include "TimePort.h"
#include "TimedLock.h"
#include "UsbfsDevice.h"

#include <atomic>
#include <functional>
#include <map>
#include <mutex>
#include <queue>
#include <set>
#include <vector>

/// The bus behind UsbfsBed: the test bed of umockdev, the devices on it, their lock and their timer.
///
/// Three kinds of threads meet here: the test bed's own, which brings the programs' requests and must never be kept
/// waiting; the bus thread, on which everything that calls the test bed runs; and the callers of the public operations.
class UsbfsBus final : public UsbfsDevice::Bus, private TimedLock::Content
{
public:
    using Instant = TimePort::Instant;
    using Listener = std::function<void(int printer, const ReceivedFrame &frame)>;

    explicit UsbfsBus(TimePort &time);
    ~UsbfsBus();
    UsbfsBus(const UsbfsBus &) = delete;
    UsbfsBus &operator=(const UsbfsBus &) = delete;

    int add(PrinterModel model, UsbShape shape);
    void plug(int printer);
    void unplug(int printer);
    void setScript(int printer, PrinterScript script);
    void setListener(Listener listener);
    qint64 holdByProcess(int printer);
    void release(int printer);
    bool busy() const;

    /// Runs `action` on a device in a turn of the lock.
    void with(int printer, const std::function<void(UsbfsDevice &)> &action);
    /// Reads something of a device under the lock.
    template <typename Value>
    Value of(int printer, const std::function<Value(const UsbfsDevice &)> &reader) const
    {
        const std::lock_guard lock(m_lock.mutex());
        return reader(*m_devices.at(printer));
    }

private:
    Instant now() const override { return m_time.now(); }
    void settle() override;
    std::optional<Instant> nextDue(Instant now) const override;
    bool owesSomething() const;
    int serve(UsbfsDevice &device, UMockdevIoctlClient *client) override;
    void left(UsbfsDevice &device) override;
    void received(UsbfsDevice &device, const ReceivedFrame &frame) override;
    void scheduled(UsbfsDevice &device, const BusEvent &event) override;

    int numberOf(const UsbfsDevice &device) const { return device.number() - 1; }
    void scheduleStart(int printer, const PrinterScript &script);
    void apply(int printer, BusEvent::Action action);
    void post(std::function<void()> job);
    void plugNow(int printer);
    void removeNow(const QByteArray &sysfsPath, const QByteArray &nodePath);
    /// Ends the service of the nodes of devices that have left, but for the latest.
    void stopServing(std::size_t kept);
    int freeDeviceNumber();

    TimePort &m_time;
    mutable TimedLock m_lock;
    GObjectRef<UMockdevTestbed> m_testbed;
    QString m_root;

    std::vector<std::unique_ptr<UsbfsDevice>> m_devices;
    std::map<int, std::unique_ptr<HolderProcess>> m_holders;
    Agenda m_agenda;
    Listener m_listener;
    int m_lastDeviceNumber = 1;
    std::set<QByteArray> m_hubs; ///< Those that are on the bus; they stay.
    /// Nodes of devices that have left, which the test bed still serves. A program that opened such a node just before
    /// would be aborted by umockdev if nobody took its requests.
    std::queue<QByteArray> m_leftNodes;
    /// When a program last asked for something, or something was last made ready for one. Real time, not the port's:
    /// see `busy`.
    std::chrono::steady_clock::time_point m_lastMove;

    std::atomic<int> m_jobs = 0;
    SerialQueue m_thread;
};
