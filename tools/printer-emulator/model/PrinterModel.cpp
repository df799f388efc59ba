#include "PrinterModel.h"

#include "ConfigurationPayload.h"
#include "EmulatedCommand.h"
#include "FrameLayout.h"

#include <algorithm>
#include <utility>

using namespace FrameLayout;

int PrinterRecord::count(quint16 command) const
{
    const auto found = counts.find(command);
    return found == counts.end() ? 0 : found->second;
}

std::vector<quint16> PrinterRecord::commands() const
{
    std::vector<quint16> commands;
    for (const ReceivedFrame &frame : frames) {
        if (frame.isSound())
            commands.push_back(frame.command);
    }
    return commands;
}

bool PrinterRecord::allSound() const
{
    return std::ranges::all_of(frames, &ReceivedFrame::isSound);
}

PrinterModel::PrinterModel(ModelIdentity identity, PrinterScript script)
    : m_identity(std::move(identity))
    , m_script(std::move(script))
{
}

void PrinterModel::setScript(PrinterScript script)
{
    m_script = std::move(script);
}

OutPlan PrinterModel::plan(QByteArrayView chunk)
{
    OutPlan plan{.accept = chunk.size()};
    const qsizetype before = m_reader.size();
    if (!m_attempt) {
        FrameReader ahead = m_reader;
        ahead.feed(chunk);
        const std::optional<ReceivedFrame> frame = ahead.takeFrame();
        if (const quint16 command = frame ? frame->command : ahead.command())
            m_attempt = begin(command);
    }
    if (!m_attempt)
        return plan;

    const PrinterFault fault = m_attempt->fault;
    const auto endAt = [&](const std::optional<qsizetype> &limit, OutPlan::After after) {
        if (!limit || *limit >= before + plan.accept)
            return;
        plan.accept = std::max<qsizetype>(0, *limit - before);
        plan.after = after;
    };
    plan.delay = before == 0 ? fault.acceptDelay : PrinterFault::Duration{0};
    endAt(fault.acceptOnly, OutPlan::After::Nak);
    endAt(fault.unplugOut, OutPlan::After::Unplug);
    if (fault.stallOut) {
        plan = {.accept = 0, .after = OutPlan::After::Stall, .delay = plan.delay};
        endExchange();
    }
    return plan;
}

PrinterAnswer PrinterModel::accept(QByteArrayView bytes, Instant now)
{
    PrinterAnswer answer;
    while (!bytes.isEmpty()) {
        bytes = bytes.sliced(m_reader.feed(bytes));
        const std::optional<ReceivedFrame> frame = m_reader.takeFrame();
        if (!frame)
            break;
        if (!m_attempt)
            m_attempt = begin(frame->command);
        const Attempt attempt = *std::exchange(m_attempt, std::nullopt);
        if (frame->isSound())
            std::ranges::move(obey(*frame, attempt.fault, now).transfers(attempt.fault),
                              std::back_inserter(answer.transfers));
        std::ranges::move(eventsAfter(attempt), std::back_inserter(answer.events));
        m_record.frames.push_back(*frame);
        answer.frames.push_back(*frame);
    }
    return answer;
}

std::optional<ReceivedFrame> PrinterModel::endExchange()
{
    m_attempt.reset();
    std::optional<ReceivedFrame> frame = m_reader.cutOff();
    if (frame)
        m_record.frames.push_back(*frame);
    return frame;
}

PrinterModel::Attempt PrinterModel::begin(quint16 command)
{
    Attempt attempt{command, ++m_record.counts[command], {}};
    const auto fault = std::ranges::find_if(m_script.faults, [&](const PrinterFault &candidate) {
        return candidate.command == command &&
               (candidate.occurrence == 0 || candidate.occurrence == attempt.occurrence);
    });
    if (fault != m_script.faults.end())
        attempt.fault = *fault;
    return attempt;
}

std::vector<BusEvent> PrinterModel::eventsAfter(const Attempt &attempt) const
{
    std::vector<BusEvent> events;
    for (const BusEvent &event : m_script.events) {
        if (event.after && event.after->command == attempt.command && event.after->occurrence == attempt.occurrence)
            events.push_back(event);
    }
    return events;
}

PrinterReply PrinterModel::obey(const ReceivedFrame &frame, const PrinterFault &fault, Instant now)
{
    PrinterReply reply;
    reply.command = frame.command;
    switch (frame.command) {
    case EmulatedCommand::WakeUp:
        reply.result = m_script.wakeUpResult;
        break;
    case EmulatedCommand::Capability:
        reply.result = m_script.capabilityResult;
        break;
    case EmulatedCommand::Configuration:
        reply.result = configure(frame, fault, now);
        reply.time = m_script.joinTime;
        break;
    case EmulatedCommand::Address:
        if (hasAddress(now))
            reply.data = addressData();
        // The host reads data only when the result says that there is some.
        reply.result = fault.data.value_or(reply.data).isEmpty() ? 0 : 1;
        break;
    case EmulatedCommand::InformationPage:
        reply.result = m_script.informationPageResult;
        break;
    }
    return reply;
}

quint16 PrinterModel::configure(const ReceivedFrame &frame, const PrinterFault &fault, Instant now)
{
    const ConfigurationPayload payload(QByteArrayView(frame.bytes).sliced(payloadOffset, ConfigurationPayload::size));
    m_record.networkName = payload.networkName();
    m_record.password = payload.password();
    m_joined.reset();
    quint16 result = m_script.configurationResult;
    if (m_join) {
        const std::optional<QByteArray> address = m_join(*m_record.networkName, *m_record.password);
        m_script.ipv4 = address.value_or(QByteArray());
        result = address ? 1 : 0;
    }
    if (fault.result.value_or(result) == 1)
        m_joined = now + m_script.joinTime;
    return result;
}

bool PrinterModel::hasAddress(Instant now) const
{
    return m_script.joinedFromStart || (m_joined && now >= *m_joined + m_script.addressTime);
}

QByteArray PrinterModel::addressData() const
{
    QByteArray data(addressDataSize, '\0');
    const auto put = [&data](qsizetype offset, qsizetype size, const QByteArray &text) {
        std::ranges::copy(text.first(std::min(text.size(), size - 1)), data.begin() + offset);
    };
    put(ipv4Offset, ipv4Size, m_script.ipv4);
    put(ipv6Offset, ipv6Size, m_script.ipv6);
    put(secondIpv6Offset, ipv6Size, m_script.secondIpv6);
    return data;
}
