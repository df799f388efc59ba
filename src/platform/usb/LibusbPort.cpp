#include "LibusbPort.h"

#include "ClaimedInterface.h"
#include "LibusbConnection.h"
#include "TimePort.h"
#include "UsbDeviceFacts.h"
#include "UsbErrorGate.h"
#include "UsbEventThread.h"
#include "UsbNode.h"

#include <algorithm>
#include <condition_variable>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int claimAttempts = 5;
constexpr TimePort::Duration claimPause{200};

WTResult<UsbHandle> openNode(libusb_device *device)
{
    const QString node = usbNodePath(device);
    libusb_device_handle *handle = nullptr;
    const int result = libusb_open(device, &handle);
    if (result == LIBUSB_ERROR_ACCESS)
        return usbError(UsbErrorCode::PermissionDenied, u"permission denied on %1"_s.arg(node),
                        usbNodeAccessHint(node));
    if (result != LIBUSB_SUCCESS)
        return usbErrorFromLibrary(result, u"opening %1"_s.arg(node));
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
    UsbDeviceReference find(const UsbDevice &wanted);
    WTResult<std::unique_ptr<ClaimedInterface>> claim(libusb_device_handle *handle, const PrinterInterface &interface,
                                                      const QString &node);

    TimePort &time;
    UsbContext context;
    UsbDeviceFacts facts;
    std::mutex mutex;
    std::condition_variable reportEnded;
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
    // The listener that went takes its captures along, after the lock.
    lock.unlock();
}

UsbDeviceReference LibusbPort::State::find(const UsbDevice &wanted)
{
    for (UsbDeviceReference &device : context.devices()) {
        libusb_device_descriptor descriptor = {};
        libusb_get_device_descriptor(device.get(), &descriptor);
        if (descriptor.idVendor == wanted.vendorID && descriptor.idProduct == wanted.productID &&
            usbLocationID(device.get()) == wanted.locationID)
            return std::move(device);
    }
    return nullptr;
}

// Whoever holds the interface may be done with it in a moment.
WTResult<std::unique_ptr<ClaimedInterface>>
LibusbPort::State::claim(libusb_device_handle *handle, const PrinterInterface &interface, const QString &node)
{
    const QString what = u"claiming interface %1 of %2"_s.arg(interface.number).arg(node);
    for (int attempt = 1;; ++attempt) {
        auto claimed = ClaimedInterface::claim(handle, interface, what);
        if (claimed || !isUsbError(claimed.error(), UsbErrorCode::Busy))
            return claimed;
        if (attempt == claimAttempts)
            break;
        time.sleep(claimPause);
    }
    const auto holder = usbNodeHolder(node);
    return usbError(UsbErrorCode::Busy, what,
                    holder ? u"held by another program (%1)"_s.arg(*holder) : u"held by another program"_s);
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
    const UsbDeviceReference device = m_state->find(wanted);
    if (!device)
        return usbError(UsbErrorCode::NotFound, u"opening location 0x%1"_s.arg(wanted.locationID, 8, 16, QChar(u'0')),
                        u"no such device on the bus"_s);
    const QString node = usbNodePath(device.get());
    const UsbConfiguration configuration = activeConfiguration(device.get());
    const auto interface = configuration ? choosePrinterInterface(*configuration) : std::nullopt;
    if (!interface)
        return usbError(UsbErrorCode::NotFound, u"opening %1"_s.arg(node), u"no printer interface"_s);

    auto handle = openNode(device.get());
    if (!handle)
        return handle.error();
    // Transfers complete on the event thread.
    m_state->thread.start();
    auto claimed = m_state->claim(handle.value().get(), *interface, node);
    if (!claimed)
        return claimed.error();
    return std::unique_ptr<UsbConnection>(std::make_unique<LibusbConnection>(
        m_state->time, std::move(handle.value()), std::move(claimed.value()), *interface, node));
}
