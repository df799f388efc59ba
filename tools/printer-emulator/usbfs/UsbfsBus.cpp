#include "UsbfsBus.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// After this time without a request a program counts as asleep or gone: nothing is on its way to it any more.
constexpr std::chrono::seconds patience{1};

constexpr int lastUsableDeviceNumber = 99;

/// See `m_leftNodes`.
constexpr std::size_t leftNodesServed = 2;

void check(bool succeeded, GError *error)
{
    if (succeeded)
        return;
    const std::string message = error->message;
    g_error_free(error);
    throw std::runtime_error(message);
}

/// umockdev's constructor starts a thread, which reads the environment, and only then adds its variable to it. The room
/// for the variable is made before, so that the environment is not moved while that thread reads it.
UMockdevTestbed *newTestbed()
{
    constexpr auto variable = "UMOCKDEV_DIR";
    ::setenv(variable, "", 1);
    ::unsetenv(variable);
    return umockdev_testbed_new();
}
} // namespace

UsbfsBus::UsbfsBus(TimePort &time)
    : m_time(time)
    , m_lock(time, *this)
    , m_testbed(newTestbed())
    , m_thread(u"emulated USB bus"_s)
{
    gchar *root = umockdev_testbed_get_root_dir(m_testbed.get());
    m_root = QString::fromUtf8(root);
    g_free(root);
    GError *error = nullptr;
    check(umockdev_testbed_add_from_string(m_testbed.get(), UsbfsSysfs::rootHub().constData(), &error), error);
}

UsbfsBus::~UsbfsBus()
{
    m_lock.stop();
    {
        const TimedLock::Turn turn(m_lock);
        m_agenda = {};
        for (const auto &device : m_devices)
            device->leave();
    }
    m_thread.sync([this] {
        m_holders.clear();
        stopServing(0);
        m_testbed.reset();
    });
}

int UsbfsBus::add(PrinterModel model, UsbShape shape)
{
    const TimedLock::Turn turn(m_lock);
    const auto printer = static_cast<int>(m_devices.size());
    const PrinterScript script = model.script();
    m_devices.push_back(std::make_unique<UsbfsDevice>(*this, m_root, printer + 1, std::move(model), std::move(shape)));
    scheduleStart(printer, script);
    return printer;
}

void UsbfsBus::setScript(int printer, PrinterScript script)
{
    const TimedLock::Turn turn(m_lock);
    scheduleStart(printer, script);
    m_devices.at(printer)->model().setScript(std::move(script));
}

void UsbfsBus::scheduleStart(int printer, const PrinterScript &script)
{
    for (const BusEvent &event : script.events) {
        if (!event.after)
            m_agenda.add(now() + event.delay, {printer, event.action});
    }
}

void UsbfsBus::setListener(Listener listener)
{
    const std::lock_guard lock(m_lock.mutex());
    m_listener = std::move(listener);
}

void UsbfsBus::plug(int printer)
{
    m_thread.sync([this, printer] { plugNow(printer); });
}

void UsbfsBus::unplug(int printer)
{
    with(printer, &UsbfsDevice::leave);
    m_thread.sync([] {}); // `left` has posted the rest.
}

void UsbfsBus::plugNow(int printer)
{
    QByteArray hub, description, node;
    UsbfsDevice *device = nullptr;
    {
        const TimedLock::Turn turn(m_lock);
        device = m_devices.at(printer).get();
        if (device->isPlugged())
            return;
        device->arrive(freeDeviceNumber());
        device->sysfs().createInterfaces(device->shape());
        device->interfacesChanged();
        node = UsbfsSysfs::nodePath(device->deviceNumber()).toUtf8();
        hub = device->sysfs().hub();
        description = device->sysfs().device(device->model().identity(), device->shape(), device->deviceNumber());
    }
    GError *error = nullptr;
    if (!hub.isEmpty() && m_hubs.insert(hub).second)
        check(umockdev_testbed_add_from_string(m_testbed.get(), hub.constData(), &error), error);
    check(umockdev_testbed_attach_ioctl(m_testbed.get(), node.constData(), device->handler(), &error), error);
    check(umockdev_testbed_add_from_string(m_testbed.get(), description.constData(), &error), error);
}

void UsbfsBus::removeNow(const QByteArray &sysfsPath, const QByteArray &nodePath)
{
    umockdev_testbed_uevent(m_testbed.get(), sysfsPath.constData(), "remove");
    umockdev_testbed_remove_device(m_testbed.get(), sysfsPath.constData());
    m_leftNodes.push(nodePath);
    stopServing(leftNodesServed);
}

void UsbfsBus::stopServing(std::size_t kept)
{
    for (; m_leftNodes.size() > kept; m_leftNodes.pop())
        umockdev_testbed_detach_ioctl(m_testbed.get(), m_leftNodes.front().constData(), nullptr);
}

int UsbfsBus::freeDeviceNumber()
{
    const auto isTaken = [this](int number) {
        return std::ranges::any_of(m_devices, [number](const std::unique_ptr<UsbfsDevice> &device) {
            return device->isPlugged() && device->deviceNumber() == number;
        });
    };
    do {
        m_lastDeviceNumber = m_lastDeviceNumber < lastUsableDeviceNumber ? m_lastDeviceNumber + 1 : 2;
    } while (isTaken(m_lastDeviceNumber));
    return m_lastDeviceNumber;
}

qint64 UsbfsBus::holdByProcess(int printer)
{
    const auto path = of<QString>(
        printer, [this](const UsbfsDevice &device) { return m_root + UsbfsSysfs::nodePath(device.deviceNumber()); });
    qint64 pid = 0;
    // On the bus thread, since the holder ends with the thread that started it.
    m_thread.sync([&] {
        auto &holder = m_holders[printer] = std::make_unique<HolderProcess>(path.toStdString());
        pid = holder->pid();
    });
    with(printer, [](UsbfsDevice &device) { device.setHeld(true); });
    return pid;
}

void UsbfsBus::release(int printer)
{
    with(printer, [](UsbfsDevice &device) { device.setHeld(false); });
    m_thread.sync([&] { m_holders.erase(printer); });
}

bool UsbfsBus::busy() const
{
    if (m_jobs > 0)
        return true;
    const std::lock_guard lock(m_lock.mutex());
    return std::chrono::steady_clock::now() < m_lastMove + patience && owesSomething();
}

bool UsbfsBus::owesSomething() const
{
    return std::ranges::any_of(m_devices, [](const auto &device) { return device->owesSomething(); });
}

void UsbfsBus::with(int printer, const std::function<void(UsbfsDevice &)> &action)
{
    const TimedLock::Turn turn(m_lock);
    action(*m_devices.at(printer));
}

int UsbfsBus::serve(UsbfsDevice &device, UMockdevIoctlClient *client)
{
    const TimedLock::Turn turn(m_lock);
    m_lastMove = std::chrono::steady_clock::now();
    return device.handle(client);
}

void UsbfsBus::left(UsbfsDevice &device)
{
    post([this, path = device.sysfs().path(), node = UsbfsSysfs::nodePath(device.deviceNumber()).toUtf8()] {
        removeNow(path, node);
    });
}

void UsbfsBus::received(UsbfsDevice &device, const ReceivedFrame &frame)
{
    if (m_listener)
        m_listener(numberOf(device), frame);
}

void UsbfsBus::scheduled(UsbfsDevice &device, const BusEvent &event)
{
    m_agenda.add(now() + event.delay, {numberOf(device), event.action});
}

void UsbfsBus::settle()
{
    const bool owed = owesSomething();
    for (const auto &device : m_devices)
        device->pump();
    // The program hears of it through the kernel; the time until then counts from now.
    if (!owed && owesSomething())
        m_lastMove = std::chrono::steady_clock::now();
    while (const auto entry = m_agenda.takeDue(now()))
        apply(entry->printer, entry->action);
}

void UsbfsBus::apply(int printer, BusEvent::Action action)
{
    UsbfsDevice &device = *m_devices.at(printer);
    switch (action) {
    case BusEvent::Action::Unplug:
        return device.pullPlug();
    case BusEvent::Action::Plug:
        return post([this, printer] { plugNow(printer); });
    case BusEvent::Action::Hold:
        return device.setHeld(true);
    case BusEvent::Action::Release:
        return device.setHeld(false);
    case BusEvent::Action::Deny:
        return device.setPermitted(false);
    case BusEvent::Action::Permit:
        return device.setPermitted(true);
    }
}

std::optional<UsbfsBus::Instant> UsbfsBus::nextDue(Instant now) const
{
    std::optional<Instant> due = m_agenda.next();
    for (const auto &device : m_devices) {
        if (const auto next = device->nextDue(now))
            due = std::min(due.value_or(*next), *next);
    }
    return due;
}

void UsbfsBus::post(std::function<void()> job)
{
    ++m_jobs;
    m_thread.async([this, job = std::move(job)] {
        job();
        --m_jobs;
    });
}
