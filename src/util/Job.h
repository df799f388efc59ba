#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

/// A function without arguments that is kept for later. Unlike `std::function` it holds what can only be moved, and the
/// usual captures (up to three words) without taking memory.
class Job
{
public:
    template <typename Function>
    requires(!std::is_same_v<std::remove_cvref_t<Function>, Job> && std::is_invocable_v<Function &>)
        Job(Function &&function)
    {
        using Kept = std::remove_cvref_t<Function>;
        if constexpr (sizeof(Kept) <= room && alignof(Kept) <= alignof(void *) &&
                      std::is_nothrow_move_constructible_v<Kept>)
            keep<Kept>(std::forward<Function>(function));
        else
            keep<OnHeap<Kept>>(OnHeap<Kept>{std::make_unique<Kept>(std::forward<Function>(function))});
    }
    ~Job() { m_operations->destroy(m_memory); }
    Job(Job &&other) noexcept
        : m_operations(other.m_operations)
    {
        m_operations->move(other.m_memory, m_memory);
    }
    Job(const Job &) = delete;
    Job &operator=(const Job &) = delete;

    void operator()() { m_operations->run(m_memory); }

private:
    static constexpr std::size_t room = 3 * sizeof(void *);

    template <typename Function>
    struct OnHeap {
        std::unique_ptr<Function> function;
        void operator()() { (*function)(); }
    };

    struct Operations {
        void (*run)(void *memory);
        void (*move)(void *from, void *to);
        void (*destroy)(void *memory);
    };

    template <typename Kept>
    static constexpr Operations operationsOn{
        [](void *memory) { (*static_cast<Kept *>(memory))(); },
        [](void *from, void *to) { new (to) Kept(std::move(*static_cast<Kept *>(from))); },
        [](void *memory) { static_cast<Kept *>(memory)->~Kept(); }};

    template <typename Kept, typename Function>
    void keep(Function &&function)
    {
        new (m_memory) Kept(std::forward<Function>(function));
        m_operations = &operationsOn<Kept>;
    }

    const Operations *m_operations;
    alignas(void *) std::byte m_memory[room];
};
