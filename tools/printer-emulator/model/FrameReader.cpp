#include "FrameReader.h"

#include "ConfigurationPayload.h"
#include "EmulatedCommand.h"
#include "FrameLayout.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace FrameLayout;
using namespace Qt::Literals::StringLiterals;

namespace
{
quint16 payloadSizeOf(quint16 command)
{
    switch (command) {
    case EmulatedCommand::Configuration:
        return ConfigurationPayload::size;
    case EmulatedCommand::InformationPage:
        return 2;
    default:
        return 0;
    }
}

bool isKnown(quint16 command)
{
    return std::ranges::find(EmulatedCommand::all, command) != std::end(EmulatedCommand::all);
}
} // namespace

qsizetype FrameReader::feed(QByteArrayView bytes)
{
    qsizetype taken = 0;
    while (taken < bytes.size() && !m_completed) {
        m_frame.bytes.append(bytes[taken++]);
        checkLastByte();
    }
    return taken;
}

std::optional<ReceivedFrame> FrameReader::takeFrame()
{
    return std::exchange(m_completed, std::nullopt);
}

std::optional<ReceivedFrame> FrameReader::cutOff()
{
    if (m_frame.bytes.isEmpty())
        return std::nullopt;
    m_frame.problems.push_back({size(), u"cut off"_s});
    complete(size());
    return takeFrame();
}

void FrameReader::checkLastByte()
{
    const qsizetype offset = size() - 1;
    if (m_lostAt) {
        if (!m_frame.bytes.endsWith(universalExit))
            return;
        // Bytes without a proper opening end before this UEL, which opens the next frame.
        const bool opensNext = *m_lostAt <= universalExit.size();
        complete(opensNext ? size() - universalExit.size() : size());
        if (opensNext)
            m_frame.bytes = universalExit.toByteArray();
    } else if (offset < universalExit.size()) {
        if (m_frame.bytes[offset] != universalExit[offset])
            lose(offset, u"not the opening UEL"_s);
    } else if (offset < headerOffset) {
        if (m_frame.bytes[offset] != enterLanguage[offset - universalExit.size()])
            lose(offset, u"not the enter line"_s);
    } else if (offset < payloadOffset) {
        checkHeaderByte(offset);
    } else {
        payloadByte(offset);
    }
}

void FrameReader::checkHeaderByte(qsizetype offset)
{
    if (offset < codeOffset && byteAt(offset) != magic[offset - headerOffset]) {
        lose(offset, u"not the ACL magic"_s);
    } else if (offset == codeOffset + 1) {
        m_frame.command = numberAt(codeOffset);
        if (!isKnown(m_frame.command))
            m_frame.problems.push_back({codeOffset, u"unknown command"_s});
    } else if (offset == lengthOffset + 1) {
        m_payloadSize = numberAt(lengthOffset);
        if (isKnown(m_frame.command) && m_payloadSize != payloadSizeOf(m_frame.command))
            m_frame.problems.push_back({lengthOffset, u"not the command's payload length"_s});
    } else if (offset >= zerosOffset && byteAt(offset) != 0) {
        lose(offset, u"not zero in the header"_s);
    }
}

void FrameReader::payloadByte(qsizetype offset)
{
    const bool pageWithoutPayload = offset == payloadOffset && m_frame.command == EmulatedCommand::InformationPage &&
                                    m_payloadSize == 2 && m_frame.bytes[offset] == universalExit.front();
    if (pageWithoutPayload)
        m_payloadSize = 0;
    const qsizetype exitOffset = offset - payloadOffset - m_payloadSize;
    if (exitOffset < 0)
        return;
    if (exitOffset == 0)
        payloadComplete();
    if (m_frame.bytes[offset] != universalExit[exitOffset])
        lose(offset, u"not the closing UEL"_s);
    else if (exitOffset == universalExit.size() - 1)
        complete(size());
}

void FrameReader::payloadComplete()
{
    const QByteArrayView payload = QByteArrayView(m_frame.bytes).sliced(payloadOffset, m_payloadSize);
    if (m_frame.command == EmulatedCommand::InformationPage && m_payloadSize == 2) {
        if (payload != QByteArrayView("\x00\x02", 2))
            m_frame.problems.push_back({payloadOffset, u"not 00 02"_s});
    } else if (m_frame.command == EmulatedCommand::Configuration && m_payloadSize == ConfigurationPayload::size) {
        for (const FrameProblem &problem : ConfigurationPayload(payload).problems())
            m_frame.problems.push_back({payloadOffset + problem.offset, problem.what});
    }
}

void FrameReader::lose(qsizetype offset, const QString &what)
{
    m_frame.problems.push_back({offset, what});
    m_lostAt = offset;
}

void FrameReader::complete(qsizetype length)
{
    m_frame.bytes.truncate(length);
    m_completed = std::exchange(m_frame, {});
    m_payloadSize = 0;
    m_lostAt.reset();
}
