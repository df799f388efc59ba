// A program that knows nothing of emulation: waits for the printer, sends it each frame given in hexadecimal, and
// prints what comes back, or libusb's name of the error.
#include "LibusbPrinter.h"

#include <cstdio>
#include <fcntl.h>

int main(int argc, char *argv[])
{
    // As many failed opens as a library that looks for hardware may make.
    for (int attempt = 0; attempt < 60; ++attempt) {
        if (::open("/dev/not-there", O_RDONLY) >= 0)
            return 1;
    }
    LibusbPrinter printer;
    if (!printer.waitForArrival()) {
        std::puts("no printer");
        return 1;
    }
    int result = printer.open();
    if (result == 0) {
        libusb_set_auto_detach_kernel_driver(printer.handle(), 1);
        result = libusb_claim_interface(printer.handle(), 0);
    }
    for (int index = 1; index < argc && result == 0; ++index) {
        QByteArray reply;
        result = printer.write(QByteArray::fromHex(argv[index]));
        if (result == 0)
            result = printer.read(reply);
        if (result == 0)
            std::puts(reply.toHex().constData());
    }
    if (result != 0)
        std::puts(libusb_error_name(result));
    return 0;
}
