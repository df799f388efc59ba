#pragma once

#include "UsbContext.h"

#include <condition_variable>
#include <functional>
#include <optional>
#include <thread>

/// The one thread that handles libusb's events: it completes transfers and notices what is plugged in and out.
class UsbEventThread
{
public:
    /// @param context outlives this object.
    /// @param attend runs on the thread, outside libusb's event handling, after every change on the bus and every call
    /// of `requestAttention`.
    UsbEventThread(UsbContext &context, std::function<void()> attend);
    /// Not on the thread itself.
    ~UsbEventThread();
    UsbEventThread(const UsbEventThread &) = delete;
    UsbEventThread &operator=(const UsbEventThread &) = delete;

    /// Starts the thread when it is not running yet, and lets it see a context that came later. Any thread.
    void start();
    void requestAttention();
    bool isCurrent() const;

private:
    static int LIBUSB_CALL busChanged(libusb_context *context, libusb_device *device, libusb_hotplug_event event,
                                      void *thread);
    void listenForHotplug();
    void noteRequest();
    void run();
    void wakeUp();

    UsbContext &m_context;
    const std::function<void()> m_attend;
    mutable std::mutex m_mutex;
    std::condition_variable m_wakeUp;
    std::optional<libusb_hotplug_callback_handle> m_hotplug;
    /// Other than 0: `attend` is to be called. Written under the mutex; libusb is given its address and looks at it,
    /// too, when it is about to wait for events. So a request that comes after our own look is not slept through, even
    /// if the interruption that goes with it has woken another thread that handles events.
    int m_attentionRequested = 0;
    bool m_stopping = false;
    std::thread m_thread;
};
