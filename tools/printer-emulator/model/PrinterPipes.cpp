#include "PrinterPipes.h"

#include <utility>

PrinterPipes::PrinterPipes(PrinterModel model, qsizetype packetSize, Listener &listener)
    : m_model(std::move(model))
    , m_inPipe(packetSize)
    , m_listener(listener)
{
}

PrinterPipes::Outcome PrinterPipes::send(QByteArrayView bytes, OutProgress &progress, Instant now)
{
    if (m_outHalted)
        return Outcome::Stalled;
    if (!progress.plan) {
        progress.plan = m_model.plan(bytes);
        progress.due = now + progress.plan->delay;
    }
    if (progress.taken || progress.due > now)
        return Outcome::Waiting;
    progress.taken = true;
    progress.sent = progress.plan->accept;
    take(bytes.first(progress.sent), now);
    switch (progress.plan->after) {
    case OutPlan::After::Complete:
        return Outcome::Complete;
    case OutPlan::After::Stall:
        m_outHalted = true;
        return Outcome::Stalled;
    case OutPlan::After::Nak:
        return Outcome::Waiting;
    case OutPlan::After::Unplug:
        return Outcome::Unplug;
    }
    Q_UNREACHABLE();
}

void PrinterPipes::take(QByteArrayView bytes, Instant now)
{
    const PrinterAnswer answer = m_model.accept(bytes, now);
    m_inPipe.push(answer.transfers, now);
    for (const ReceivedFrame &frame : answer.frames)
        m_listener.received(frame);
    for (const BusEvent &event : answer.events)
        m_listener.scheduled(event);
}

PrinterPipes::Outcome PrinterPipes::receive(QByteArray &bytes, qsizetype atMost, Instant now)
{
    if (m_inHalted)
        return Outcome::Stalled;
    switch (m_inPipe.read(bytes, atMost, now)) {
    case InPipe::Outcome::Waiting:
        return Outcome::Waiting;
    case InPipe::Outcome::Complete:
        return Outcome::Complete;
    case InPipe::Outcome::Overflow:
        return Outcome::Overflow;
    case InPipe::Outcome::Stalled:
        m_inHalted = true;
        return Outcome::Stalled;
    }
    Q_UNREACHABLE();
}

void PrinterPipes::reset()
{
    m_model.endExchange();
    m_inPipe.clear();
    m_outHalted = m_inHalted = false;
}
