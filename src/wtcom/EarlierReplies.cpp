#include "EarlierReplies.h"

#include "WTCUSBPrinter.h"

#include <QtEndian>
#include <algorithm>
#include <iterator>

namespace
{

constexpr QByteArrayView magic{"\x00\xAC", 2};
constexpr qsizetype commandOffset = 2;
constexpr qsizetype lengthOffset = 6;
constexpr qsizetype largestData = 0xFFFF;

quint16 numberAt(QByteArrayView bytes, qsizetype offset)
{
    return qFromBigEndian<quint16>(bytes.data() + offset);
}

bool reaches(QByteArrayView bytes, qsizetype offset)
{
    return bytes.size() >= offset + static_cast<qsizetype>(sizeof(quint16));
}

qsizetype announcedData(QByteArrayView header)
{
    return reaches(header, lengthOffset) ? numberAt(header, lengthOffset) : largestData;
}

} // namespace

void EarlierReplies::drop(QByteArray bytes)
{
    // A reply may begin anywhere in these bytes.
    m_rest = std::max(m_rest, bytes.size());
    take(bytes, std::ssize(m_asked));
    headerCame(bytes);
    dataCame(bytes.size() - kACLHeadSize);
}

void EarlierReplies::asked(QByteArrayView frame)
{
    // The envelope around a command is text, and its header begins with the magic.
    const qsizetype header = frame.indexOf(magic);
    if (header >= 0 && reaches(frame, header + commandOffset))
        m_asked.push_back(numberAt(frame, header + commandOffset));
}

bool EarlierReplies::takeFrom(QByteArray &bytes)
{
    return take(bytes, std::ssize(m_asked) - 1);
}

bool EarlierReplies::take(QByteArray &bytes, qsizetype earlierCommands)
{
    const qsizetype before = bytes.size();
    for (;;) {
        qsizetype skipped = 0;
        while (skipped < std::min(m_rest, bytes.size()) && !mayBegin(QByteArrayView(bytes).sliced(skipped)))
            ++skipped;
        bytes.remove(0, skipped);
        m_rest -= skipped;
        if (bytes.size() < kACLHeadSize || earlierCommands <= 0)
            return bytes.size() < before;
        const quint16 command = numberAt(bytes, commandOffset);
        const auto earlierEnd = m_asked.begin() + earlierCommands;
        const bool isPresent = earlierEnd != m_asked.end() && *earlierEnd == command;
        if (isPresent || std::find(m_asked.begin(), earlierEnd, command) == earlierEnd)
            return bytes.size() < before;
        m_rest = announcedData(bytes);
        const auto left = std::ssize(m_asked);
        settle(command);
        earlierCommands -= left - std::ssize(m_asked);
        bytes.remove(0, kACLHeadSize);
    }
}

bool EarlierReplies::mayBegin(QByteArrayView bytes) const
{
    if (magic.startsWith(bytes.first(std::min(bytes.size(), magic.size()))))
        return true;
    return reaches(bytes, commandOffset) && std::ranges::find(m_asked, numberAt(bytes, commandOffset)) != m_asked.end();
}

void EarlierReplies::headerCame(QByteArrayView header)
{
    if (header.isEmpty())
        return;
    m_rest = std::max<qsizetype>(kACLHeadSize - header.size(), 0) + announcedData(header);
    if (header.size() >= kACLHeadSize)
        settle(numberAt(header, commandOffset));
}

void EarlierReplies::dataCame(qsizetype size)
{
    m_rest = std::max<qsizetype>(m_rest - std::max<qsizetype>(size, 0), 0);
}

void EarlierReplies::settle(quint16 command)
{
    const auto found = std::ranges::find(m_asked, command);
    if (found != m_asked.end())
        m_asked.erase(m_asked.begin(), std::next(found));
}
