#pragma once

#include "FileDescriptor.h"
#include "SerialQueue.h"

#include <functional>
#include <memory>
#include <thread>

/// Runs an action on a queue when a descriptor has become readable; a thread of its own waits for that. Once it is
/// destroyed on that queue, the action does not run any more.
class DescriptorSource
{
public:
    /// Reads from the descriptor and answers whether the action is due. Runs on the waiting thread.
    using Reader = std::function<bool(int descriptor)>;
    using Action = std::function<void()>;

    DescriptorSource(FileDescriptor descriptor, Reader reader, std::shared_ptr<SerialQueue> queue, Action action);
    ~DescriptorSource();
    DescriptorSource(const DescriptorSource &) = delete;
    DescriptorSource &operator=(const DescriptorSource &) = delete;
    /// False when there is no descriptor to wait for; the action then never runs.
    bool isWaiting() const { return m_thread.joinable(); }

private:
    void run() const;

    const FileDescriptor m_descriptor;
    const FileDescriptor m_end;
    const Reader m_reader;
    const std::shared_ptr<SerialQueue> m_queue;
    /// Shared, so that an action on its way can tell whether the source is still there.
    const std::shared_ptr<const Action> m_action;
    std::thread m_thread;
};
