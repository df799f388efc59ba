#pragma once

#include <libusb.h>
#include <optional>

/// The way to a printer's data: one alternate setting of one interface and its two bulk pipes.
struct PrinterInterface {
    int number = 0;
    int alternateSetting = 0;
    bool hasAlternatives = false; ///< The interface has more than one setting, so that the setting has to be chosen.
    unsigned char outEndpoint = 0;
    unsigned char inEndpoint = 0;
    int inPacketSize = 0; ///< Bytes.
};

/// The first setting of class 7, subclass 1, protocol 2 (bidirectional) that has both bulk pipes, else of protocol 1.
/// Protocols 3 and 4 carry other languages and are never chosen.
std::optional<PrinterInterface> choosePrinterInterface(const libusb_config_descriptor &configuration);
