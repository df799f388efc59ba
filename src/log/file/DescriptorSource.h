#pragma once

#include "FileDescriptor.h"
#include "SerialQueue.h"

#include <functional>
#include <memory>

/// Runs an action on a queue when a descriptor has become readable. One thread of the process waits for all sources.
/// Destroyed on that queue, it runs no action any more.
class DescriptorSource
{
public:
    /// Takes what waits in the descriptor and says whether the action is due. Runs on the waiting thread: short, and
    /// neither makes nor destroys a source.
    using Reader = std::function<bool(int descriptor)>;
    using Action = std::function<void()>;

    DescriptorSource(FileDescriptor descriptor, Reader reader, std::shared_ptr<SerialQueue> queue, Action action);
    ~DescriptorSource();
    /// False for a descriptor that is not open or cannot be waited for; the action then never runs.
    bool isWaiting() const { return m_isWaiting; }
    DescriptorSource(const DescriptorSource &) = delete;
    DescriptorSource &operator=(const DescriptorSource &) = delete;

private:
    class WaitingThread;
    void becameReadable() const;

    const FileDescriptor m_descriptor;
    const Reader m_reader;
    const std::shared_ptr<SerialQueue> m_queue;
    /// Shared, so that an action on its way can tell whether the source is still there.
    const std::shared_ptr<const Action> m_action;
    quint64 m_identifier = 0;
    bool m_isWaiting = false;
};
