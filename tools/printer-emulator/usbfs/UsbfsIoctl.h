#pragma once

#include <cstddef>
#include <memory>
#include <umockdev.h>

/// A counted reference to an object of the test bed.
struct ReleaseGObject {
    void operator()(void *object) const { g_object_unref(object); }
};
template <typename Object>
using GObjectRef = std::unique_ptr<Object, ReleaseGObject>;

template <typename Object>
GObjectRef<Object> share(Object *object)
{
    return GObjectRef<Object>(static_cast<Object *>(g_object_ref(object)));
}

/// What the pointer at `offset` of `data` points to, in the client's memory; null for an empty block.
inline GObjectRef<UMockdevIoctlData> resolve(UMockdevIoctlData *data, std::size_t offset, std::size_t size)
{
    return GObjectRef<UMockdevIoctlData>(umockdev_ioctl_data_resolve(data, offset, size, nullptr));
}

/// The structure that a request points to. Changes reach the client when the request is completed.
template <typename Struct>
class IoctlArgument
{
public:
    explicit IoctlArgument(UMockdevIoctlClient *client)
        : m_data(resolve(umockdev_ioctl_client_get_arg(client), 0, sizeof(Struct)))
    {
    }

    Struct *operator->() const { return reinterpret_cast<Struct *>(m_data->data); }
    Struct &operator*() const { return *operator->(); }
    /// Keeps the structure beyond the request.
    GObjectRef<UMockdevIoctlData> take() { return std::move(m_data); }

private:
    GObjectRef<UMockdevIoctlData> m_data;
};
