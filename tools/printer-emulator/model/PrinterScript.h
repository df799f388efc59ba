#pragma once

#include "PrinterFault.h"

#include <optional>

/// Something that happens on the bus outside of an exchange.
struct BusEvent {
    enum class Action {
        Unplug,
        Plug,    ///< With a new device number.
        Hold,    ///< Another program claims the interface as soon as it is free: claims fail with "busy".
        Release, ///< That program lets go.
        Deny,    ///< The device node may not be opened any more; what is open stays open.
        Permit,
    };

    /// The command whose frame sets the event off. An event without a cause counts from the start of the emulation.
    struct Cause {
        quint16 command = 0;
        int occurrence = 1;
    };

    Action action = Action::Unplug;
    std::optional<Cause> after{};
    std::chrono::milliseconds delay{0};
};

/// What the emulated printer does: its answers, its times, its faults. Plain data.
struct PrinterScript {
    using Duration = std::chrono::milliseconds;

    quint16 wakeUpResult = 0;
    quint16 capabilityResult = 1;    ///< 1: the printer has Wi-Fi that can be configured.
    quint16 configurationResult = 1; ///< 1: joined. Any other value: the printer did not join.
    quint16 informationPageResult = 0;

    Duration joinTime{0};    ///< From the configuration frame to its answer.
    Duration addressTime{0}; ///< From that answer to the first address; until then the address query gets no data.

    QByteArray ipv4 = "192.168.1.77";
    QByteArray ipv6{};
    QByteArray secondIpv6{};
    bool joinedFromStart = false;

    /// What transfers see when a fault or an event of this script pulls the plug.
    enum class PulledPlug {
        AtOnce,    ///< That the device is gone.
        BusErrors, ///< Bus errors; the device leaves a moment later, when the hub has noticed.
        Stalls     ///< Stalls; the device leaves as with `BusErrors`.
    };
    PulledPlug pulledPlug = PulledPlug::AtOnce;
    static constexpr Duration hubNotices{250}; ///< From the first failure until the device has left.

    bool plugged = true; ///< On the bus from the start; otherwise an event plugs it.

    std::vector<PrinterFault> faults{}; ///< The first one that fits a command and its occurrence applies.
    std::vector<BusEvent> events{};
};
