#include "AlternateSignalStack.h"

namespace
{

constexpr std::size_t stackSize = 65536;

}

AlternateSignalStack::AlternateSignalStack()
    : m_memory(std::make_unique_for_overwrite<std::byte[]>(stackSize))
{
    stack_t stack{};
    stack.ss_sp = m_memory.get();
    stack.ss_size = stackSize;
    sigaltstack(&stack, &m_before);
}

AlternateSignalStack::~AlternateSignalStack()
{
    sigaltstack(&m_before, nullptr);
}
