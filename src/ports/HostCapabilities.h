#pragma once

/// What this host offers, asked once at start-up. The program works with either answer to each question.
struct HostCapabilities {
    bool hasUnifiedLog = true;          ///< The journal takes lines; otherwise syslog does.
    bool hasDefaultInterface = true;    ///< The Wi-Fi service names a default interface.
    bool scanNeedsPermission = true;    ///< A network scan has to be permitted first.
    bool canPollAddress = true;         ///< A run may ask the printer for its address.
    bool spoolerHasConnection = true;   ///< Destinations are asked on a spooler connection (`cupsGetDests2`).
    bool activatesCooperatively = true; ///< Windows come forward by request (Wayland), not by force.
};
