#pragma once

#include <QtGlobal>
#include <vector>

/// The interfaces of an emulated device as its descriptors show them.
struct UsbShape {
    struct AlternateSetting {
        quint8 protocol = 2; ///< 1 unidirectional, 2 bidirectional.
        bool bulkIn = true;
        quint8 interfaceClass = 7;
        quint8 interfaceSubclass = 1;
    };
    /// Its alternate settings, numbered from 0. Interfaces are numbered from 0 in their order.
    using Interface = std::vector<AlternateSetting>;

    std::vector<Interface> interfaces{Interface{AlternateSetting{}}};
    quint16 packetSize = 512; ///< Of both bulk endpoints.
};
