#pragma once

class HostWiFiPort;
class SpoolerPort;
class TimePort;

/// What the models of the entry screens ask of the machine. All of it outlives them.
struct NetworkPorts {
    HostWiFiPort &hostWiFi;
    TimePort &time;
    SpoolerPort &spooler;
};
