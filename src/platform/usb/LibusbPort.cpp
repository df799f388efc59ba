#include "LibusbPort.h"

#include "ClaimedInterface.h"
#include "LibusbConnection.h"
#include "TimePort.h"
#include "UsbDeparture.h"
#include "UsbDeviceFacts.h"
#include "UsbErrorGate.h"
#include "UsbEventThread.h"
#include "UsbNode.h"
#include "UsbSysfs.h"

#include <algorithm>
#include <condition_variable>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int claimAttempts = 5;
constexpr TimePort::Duration claimPause{200};

/// A device that is on the bus, and the way to its data.
struct LocatedPrinter {
    UsbDeviceReference device;
    QString node;
    int configuration = 0;
    PrinterInterface interface;
};

QString claiming(const LocatedPrinter &printer)
{
    return u"claiming interface %1 of %2"_s.arg(printer.interface.number).arg(printer.node);
}

WTError notPermitted(const QString &node)
{
    const QString group = usbNodeGroup(node);
    const QString remedy =
        group.isEmpty() ? u"add a udev rule that grants access and plug the printer in again"_s
                        : u"join the group \"%1\" and log in again, or add a udev rule that grants access"_s.arg(group);
    return usbError({.code = UsbErrorCode::PermissionDenied, .node = node, .group = group},
                    u"permission denied on %1"_s.arg(node), remedy);
}

WTError held(const LocatedPrinter &printer, const std::optional<UsbNodeHolder> &holder)
{
    UsbCause cause{.code = UsbErrorCode::Busy, .node = printer.node};
    if (!holder)
        return usbError(cause, claiming(printer), u"held by another program"_s);
    cause.holder = holder->program;
    cause.holderPID = holder->pid;
    return usbError(cause, claiming(printer),
                    u"held by another program (%1, pid %2)"_s.arg(holder->program).arg(holder->pid));
}

WTResult<UsbHandle> openNode(const LocatedPrinter &printer)
{
    libusb_device_handle *handle = nullptr;
    const int result = libusb_open(printer.device.get(), &handle);
    if (result == LIBUSB_ERROR_ACCESS)
        return notPermitted(printer.node);
    if (result != LIBUSB_SUCCESS)
        return usbErrorFromLibrary(result, u"opening %1"_s.arg(printer.node));
    return UsbHandle(handle);
}

} // namespace

/// The members are in the order of their dependence: the thread ends first, the context goes last.
struct LibusbPort::State {
    struct Watch {
        std::vector<quint16> vendorIDs;
        ListChanged changed;
        std::optional<UsbDeviceList> reported;
    };

    explicit State(TimePort &timePort)
        : time(timePort)
        , facts(context)
        , thread(context, [this] { report(); })
    {
    }

    void report();
    /// Returns once no report is running, unless it is running on the calling thread.
    void replaceWatch(std::shared_ptr<Watch> next);
    WTResult<LocatedPrinter> locate(const UsbDevice &wanted);
    WTResult<std::unique_ptr<ClaimedInterface>> claim(libusb_device_handle *handle, const LocatedPrinter &printer);
    void remember(const QString &node, const std::shared_ptr<ClaimedInterface> &claim);
    bool isOurs(const QString &node);

    TimePort &time;
    UsbContext context;
    UsbDeviceFacts facts;
    std::mutex mutex;
    std::condition_variable reportEnded;
    std::map<QString, std::weak_ptr<ClaimedInterface>> claims; ///< Of this program's connections, by node.
    std::shared_ptr<Watch> watch;
    bool reporting = false;
    UsbEventThread thread;
};

void LibusbPort::State::report()
{
    std::unique_lock lock(mutex);
    const std::shared_ptr<Watch> current = watch;
    if (!current)
        return;
    lock.unlock();
    UsbDeviceList list = facts.collect(current->vendorIDs);
    lock.lock();
    if (watch != current || current->reported == list)
        return;
    current->reported = std::move(list);
    reporting = true;
    lock.unlock();
    current->changed(*current->reported);
    lock.lock();
    reporting = false;
    lock.unlock();
    reportEnded.notify_all();
}

void LibusbPort::State::replaceWatch(std::shared_ptr<Watch> next)
{
    std::unique_lock lock(mutex);
    watch.swap(next);
    if (!thread.isCurrent())
        reportEnded.wait(lock, [this] { return !reporting; });
    // `next` holds the earlier watch. It is destroyed without the lock, since destroying what its listener has captured
    // may call back.
    lock.unlock();
}

WTResult<LocatedPrinter> LibusbPort::State::locate(const UsbDevice &wanted)
{
    for (UsbDeviceReference &device : context.devices()) {
        libusb_device_descriptor descriptor = {};
        libusb_get_device_descriptor(device.get(), &descriptor);
        if (descriptor.idVendor != wanted.vendorID || descriptor.idProduct != wanted.productID ||
            usbLocationID(device.get()) != wanted.locationID)
            continue;
        const QString node = usbNodePath(device.get());
        const UsbConfiguration configuration = activeConfiguration(device.get());
        const auto interface = configuration ? choosePrinterInterface(*configuration) : std::nullopt;
        if (!interface)
            return usbError({UsbErrorCode::NotFound}, u"opening %1"_s.arg(node), u"no printer interface"_s);
        return LocatedPrinter{std::move(device), node, configuration->bConfigurationValue, *interface};
    }
    return usbError({UsbErrorCode::NotFound}, u"opening location 0x%1"_s.arg(wanted.locationID, 8, 16, QChar(u'0')),
                    u"no such device on the bus"_s);
}

// Tries a few times: whoever holds the interface may be done with it in a moment.
WTResult<std::unique_ptr<ClaimedInterface>> LibusbPort::State::claim(libusb_device_handle *handle,
                                                                     const LocatedPrinter &printer)
{
    for (int attempt = 1;; ++attempt) {
        auto claimed = ClaimedInterface::claim(handle, printer.interface, claiming(printer));
        if (claimed || !isUsbError(claimed.error(), UsbErrorCode::Busy))
            return claimed;
        if (attempt == claimAttempts)
            return held(printer, usbNodeHolder(printer.node));
        time.sleep(claimPause);
    }
}

void LibusbPort::State::remember(const QString &node, const std::shared_ptr<ClaimedInterface> &claim)
{
    const std::lock_guard lock(mutex);
    std::erase_if(claims, [](const auto &entry) { return entry.second.expired(); });
    claims[node] = claim;
}

bool LibusbPort::State::isOurs(const QString &node)
{
    const std::lock_guard lock(mutex);
    const auto found = claims.find(node);
    return found != claims.end() && !found->second.expired();
}

LibusbPort::LibusbPort(TimePort &time)
    : m_state(std::make_unique<State>(time))
{
}

LibusbPort::~LibusbPort() = default;

void LibusbPort::watch(std::vector<quint16> vendorIDs, ListChanged changed)
{
    m_state->replaceWatch(
        std::make_shared<State::Watch>(State::Watch{std::move(vendorIDs), std::move(changed), std::nullopt}));
    m_state->thread.start();
    m_state->thread.requestAttention();
}

void LibusbPort::stopWatching()
{
    m_state->replaceWatch(nullptr);
}

UsbDeviceList LibusbPort::devices(const std::vector<quint16> &vendorIDs)
{
    return m_state->facts.collect(vendorIDs);
}

WTResult<std::unique_ptr<UsbConnection>> LibusbPort::open(const UsbDevice &wanted)
{
    const auto printer = m_state->locate(wanted);
    if (!printer)
        return printer.error();
    auto handle = openNode(printer.value());
    if (!handle)
        return handle.error();
    // Transfers complete on the event thread.
    m_state->thread.start();
    auto claimed = m_state->claim(handle.value().get(), printer.value());
    if (!claimed)
        return unlessUnplugged(claimed.error(), claiming(printer.value()), m_state->time, handle.value().get(),
                               printer.value().interface.number);
    const std::shared_ptr<ClaimedInterface> claim = std::move(claimed.value());
    m_state->remember(printer.value().node, claim);
    return std::unique_ptr<UsbConnection>(std::make_unique<LibusbConnection>(
        m_state->time, std::move(handle.value()), claim, printer.value().interface, printer.value().node));
}

std::optional<WTError> LibusbPort::obstacle(const UsbDevice &wanted)
{
    const auto located = m_state->locate(wanted);
    if (!located)
        return located.error();
    const LocatedPrinter &printer = located.value();
    const auto driver = UsbSysfs(printer.device.get()).interfaceDriver(printer.configuration, printer.interface.number);
    const bool isHeld = driver == u"usbfs" && !m_state->isOurs(printer.node);
    if (const auto handle = openNode(printer); !handle)
        return handle.error();
    return isHeld ? std::optional(held(printer, usbNodeHolder(printer.node))) : std::nullopt;
}
