#include "UsbEventThread.h"

#include "AlternateSignalStack.h"

#include <atomic>
#include <utility>

UsbEventThread::UsbEventThread(UsbContext &context, std::function<void()> attend)
    : m_context(context)
    , m_attend(std::move(attend))
{
}

UsbEventThread::~UsbEventThread()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
        noteRequest();
    }
    wakeUp();
    if (m_thread.joinable())
        m_thread.join();
    if (m_hotplug)
        libusb_hotplug_deregister_callback(m_context.current(), *m_hotplug);
}

void UsbEventThread::start()
{
    m_context.obtain();
    {
        const std::lock_guard lock(m_mutex);
        listenForHotplug();
        if (!m_thread.joinable())
            m_thread = std::thread([this] { run(); });
    }
    wakeUp();
}

void UsbEventThread::requestAttention()
{
    {
        const std::lock_guard lock(m_mutex);
        noteRequest();
    }
    wakeUp();
}

void UsbEventThread::noteRequest()
{
    std::atomic_ref(m_attentionRequested).store(1);
}

bool UsbEventThread::isCurrent() const
{
    const std::lock_guard lock(m_mutex);
    return m_thread.get_id() == std::this_thread::get_id();
}

void UsbEventThread::listenForHotplug()
{
    if (m_hotplug || !m_context.current())
        return;
    libusb_hotplug_callback_handle handle = 0;
    const int events = LIBUSB_HOTPLUG_EVENT_DEVICE_ARRIVED | LIBUSB_HOTPLUG_EVENT_DEVICE_LEFT;
    if (libusb_hotplug_register_callback(m_context.current(), events, LIBUSB_HOTPLUG_NO_FLAGS, LIBUSB_HOTPLUG_MATCH_ANY,
                                         LIBUSB_HOTPLUG_MATCH_ANY, LIBUSB_HOTPLUG_MATCH_ANY,
                                         &UsbEventThread::busChanged, this, &handle) == LIBUSB_SUCCESS)
        m_hotplug = handle;
}

// libusb calls this while it handles events; a device may only be asked after that.
int LIBUSB_CALL UsbEventThread::busChanged(libusb_context *, libusb_device *, libusb_hotplug_event, void *thread)
{
    static_cast<UsbEventThread *>(thread)->requestAttention();
    return 0;
}

void UsbEventThread::wakeUp()
{
    m_wakeUp.notify_one();
    if (m_context.current())
        libusb_interrupt_event_handler(m_context.current());
}

void UsbEventThread::run()
{
    const AlternateSignalStack signalStack;
    std::unique_lock lock(m_mutex);
    while (!m_stopping) {
        if (std::atomic_ref(m_attentionRequested).exchange(0)) {
            lock.unlock();
            m_attend();
            lock.lock();
        } else if (libusb_context *const context = m_context.current()) {
            lock.unlock();
            libusb_handle_events_completed(context, &m_attentionRequested);
            lock.lock();
        } else {
            m_wakeUp.wait(lock, [this] { return m_stopping || m_attentionRequested || m_context.current(); });
        }
    }
}
