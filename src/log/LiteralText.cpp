#include "LiteralText.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <string>
#include <unordered_map>

namespace
{

struct Literal {
    const std::string utf8;
    const QString text;
};

/// Null when there are too many to be literals. What is answered lives for ever.
const Literal *sharedLiteral(const char *utf8)
{
    constexpr std::size_t most = 4096;
    static auto *const mutex = new std::mutex;
    static auto *const literals = new std::unordered_map<std::string, const Literal *>;
    const std::lock_guard lock(*mutex);
    if (const auto known = literals->find(utf8); known != literals->end())
        return known->second;
    if (literals->size() == most)
        return nullptr;
    return literals->emplace(utf8, new Literal{utf8, QString::fromUtf8(utf8)}).first->second;
}

/// What this thread used last, found by the address; the address alone proves nothing, the text does.
const Literal *literalOfThread(const char *utf8)
{
    constexpr std::size_t slots = 128;
    thread_local constinit std::array<const Literal *, slots> used{};
    const auto address = reinterpret_cast<std::uintptr_t>(utf8);
    const Literal *&slot = used[(address ^ address / slots) % slots];
    if (!slot || std::strcmp(slot->utf8.c_str(), utf8) != 0)
        slot = sharedLiteral(utf8);
    return slot;
}

} // namespace

QString literalText(const char *utf8)
{
    if (!utf8)
        return {};
    const Literal *literal = literalOfThread(utf8);
    if (!literal)
        return QString::fromUtf8(utf8);
    // Refers to the text that lives for ever; a copy of the text itself would be counted, by all threads at one place.
    return QString::fromRawData(literal->text.constData(), literal->text.size());
}
