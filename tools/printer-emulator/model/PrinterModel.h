#pragma once

#include "FrameReader.h"
#include "ModelIdentity.h"
#include "PrinterReply.h"
#include "PrinterScript.h"
#include "ReceivedFrame.h"

#include <QByteArrayView>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <vector>

/// What the printer was told so far.
struct PrinterRecord {
    std::vector<ReceivedFrame> frames{};     ///< In order of arrival; frames that were cut off are among them.
    std::map<quint16, int> counts{};         ///< Attempts per command code, also those that a fault cut short.
    std::optional<QByteArray> networkName{}; ///< Of the last sound configuration frame.
    std::optional<QByteArray> password{};

    int count(quint16 command) const;
    /// The commands of all sound frames, in order.
    std::vector<quint16> commands() const;
    bool allSound() const;
};

/// How the printer takes the next bytes of an OUT transfer.
struct OutPlan {
    enum class After {
        Complete, ///< The transfer succeeds.
        Stall,    ///< The endpoint halts.
        Nak,      ///< The rest is never taken.
        Unplug,   ///< The printer leaves the bus.
    };
    qsizetype accept = 0; ///< Bytes to take, from the start of the chunk.
    After after = After::Complete;
    std::chrono::milliseconds delay{0}; ///< Before the first of them is taken.
};

/// What follows from received bytes.
struct PrinterAnswer {
    std::vector<InTransfer> transfers{};
    std::vector<BusEvent> events{};      ///< Due now, each after its own delay.
    std::vector<ReceivedFrame> frames{}; ///< The frames that these bytes completed.
};

/// The printer without its cable: bytes in, scripted replies out. It checks every frame byte by byte, keeps what it was
/// told, and answers only sound frames. It knows neither USB nor threads. What puts it on a bus guards it by one lock,
/// and for each OUT transfer calls `plan` once, then `accept` with the bytes that the plan let through.
class PrinterModel
{
public:
    using Instant = std::chrono::steady_clock::time_point;

    explicit PrinterModel(ModelIdentity identity = {}, PrinterScript script = {});

    const ModelIdentity &identity() const { return m_identity; }
    const PrinterScript &script() const { return m_script; }
    /// From the next frame on. The record and the network stay.
    void setScript(PrinterScript script);

    /// Joins a real network: answers the IPv4 address that the printer has there, or nothing when it was not let in.
    /// May take long; the printer does nothing else meanwhile.
    using Join = std::function<std::optional<QByteArray>(const QByteArray &name, const QByteArray &password)>;
    /// From the next configuration on, in place of the script's result and address.
    void setJoin(Join join) { m_join = std::move(join); }

    OutPlan plan(QByteArrayView chunk);
    PrinterAnswer accept(QByteArrayView bytes, Instant now);
    /// The host let go of the interface, or the plug was pulled: a frame under way is cut off. Returns it.
    std::optional<ReceivedFrame> endExchange();

    const PrinterRecord &record() const { return m_record; }

private:
    /// The frame under way, as soon as its command code is known.
    struct Attempt {
        quint16 command = 0;
        int occurrence = 0;
        PrinterFault fault;
    };

    Attempt begin(quint16 command);
    std::vector<BusEvent> eventsAfter(const Attempt &attempt) const;
    PrinterReply obey(const ReceivedFrame &frame, const PrinterFault &fault, Instant now);
    /// The result code that the host gets.
    quint16 configure(const ReceivedFrame &frame, const PrinterFault &fault, Instant now);
    bool hasAddress(Instant now) const;
    QByteArray addressData() const;

    ModelIdentity m_identity;
    PrinterScript m_script;
    Join m_join;
    FrameReader m_reader;
    PrinterRecord m_record;
    std::optional<Attempt> m_attempt;
    std::optional<Instant> m_joined; ///< In the future while the printer is still joining.
};
