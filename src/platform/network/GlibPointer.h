#pragma once

#include <glib-object.h>
#include <memory>

/// Owners of GLib things. For .cpp files of this folder only.
struct GlibRelease {
    void operator()(GMainContext *context) const { g_main_context_unref(context); }
    void operator()(GMainLoop *loop) const { g_main_loop_unref(loop); }
    void operator()(GSource *source) const { g_source_unref(source); }
    void operator()(GError *error) const { g_error_free(error); }
    void operator()(GVariant *variant) const { g_variant_unref(variant); }
    void operator()(gchar *text) const { g_free(text); }
};

template <typename Type>
using GlibPointer = std::unique_ptr<Type, GlibRelease>;

struct GObjectRelease {
    void operator()(gpointer object) const { g_object_unref(object); }
};

template <typename Type>
using GObjectPointer = std::unique_ptr<Type, GObjectRelease>;

/// Another reference to an object that somebody else owns.
template <typename Type>
GObjectPointer<Type> shareObject(Type *object)
{
    return GObjectPointer<Type>(object ? static_cast<Type *>(g_object_ref(object)) : nullptr);
}

/// A signal connection that ends with its owner.
class SignalConnection
{
public:
    SignalConnection() = default;
    SignalConnection(gpointer object, const char *signal, GCallback callback, gpointer data)
        : m_object(shareObject(G_OBJECT(object)))
        , m_handler(g_signal_connect_swapped(object, signal, callback, data))
    {
    }
    ~SignalConnection() { disconnect(); }
    SignalConnection(SignalConnection &&other) noexcept { swap(other); }
    SignalConnection &operator=(SignalConnection &&other) noexcept
    {
        swap(other);
        return *this;
    }

private:
    void disconnect()
    {
        if (m_object)
            g_signal_handler_disconnect(m_object.get(), m_handler);
    }
    void swap(SignalConnection &other)
    {
        std::swap(m_object, other.m_object);
        std::swap(m_handler, other.m_handler);
    }

    GObjectPointer<GObject> m_object;
    gulong m_handler = 0;
};
