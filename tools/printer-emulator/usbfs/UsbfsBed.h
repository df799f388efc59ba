#pragma once

#include "PrinterModel.h"
#include "TimePort.h"
#include "UsbShape.h"

#include <QString>
#include <functional>
#include <memory>

class UsbfsBus;

/// A USB bus with emulated printers for a real, unmodified libusb: a fake sysfs, udev and usbfs for this process and
/// for its children. One bed per process at a time. The program links through `wt_emulate_usbfs` (`USBFS` of
/// `wt_add_test`).
///
/// Order: make the bed before the first `libusb_init`, close libusb before destroying the bed. When two programs, or
/// two handles of one, have the same device open, a finished transfer of one wakes both.
///
/// All operations may be called on any thread, but not from the listener of `onFrame`. Scripted delays run on the time
/// port. Printers are numbered from 0 in the order of `addPrinter`.
class UsbfsBed
{
public:
    /// `time` outlives the bed.
    explicit UsbfsBed(TimePort &time);
    ~UsbfsBed();
    UsbfsBed(const UsbfsBed &) = delete;
    UsbfsBed &operator=(const UsbfsBed &) = delete;

    /// Adds a printer at the next port of bus 1 and answers its number. It is not on the bus before `plug`; usblp is
    /// bound to its printer interfaces whenever it arrives. Events of its script count from here.
    int addPrinter(PrinterModel model = PrinterModel(), UsbShape shape = {});

    /// Puts the printer on the bus with a device number it never had. Returns when the "add" event is on its way.
    void plug(int printer = 0);
    /// Takes the printer off the bus at once: transfers under way fail, the node is gone. Returns when the "remove"
    /// event is on its way.
    void unplug(int printer = 0);
    void replug(int printer = 0);
    bool isPlugged(int printer = 0) const;

    void setScript(PrinterScript script, int printer = 0);
    /// Puts another printer, which was told nothing yet, in the place of this one: unplugged, held by nobody,
    /// permitted.
    void replacePrinter(PrinterModel model, int printer = 0);
    /// What the printer was told so far.
    PrinterRecord record(int printer = 0) const;
    /// The listener is called for each frame, on a thread of the bed, while the bed is locked: it must not call the
    /// bed.
    void onFrame(std::function<void(int printer, const ReceivedFrame &frame)> listener);

    /// The driver of the interface: "usblp", "usbfs" while a program has claimed it, empty when there is none.
    QString boundDriver(int printer = 0, int interface = 0) const;
    /// The kernel has no printer driver (for this and every later plug), or has it again.
    void setKernelDriver(bool present, int printer = 0);
    /// The alternate setting in force.
    int alternateSetting(int printer = 0, int interface = 0) const;

    /// Another program claims the printer's interfaces as soon as they are free, until `release`: claims answer EBUSY.
    void hold(int printer = 0);
    /// The same by a real process called "ipp-usb" that has the node open. Returns its pid. The holder's descriptor is
    /// told by device and inode number of stat(), equal to those of stat(nodePath()); the link in /proc/PID/fd shows
    /// the pseudo-terminal. The printer must be plugged.
    qint64 holdByProcess(int printer = 0);
    void release(int printer = 0);

    /// The node cannot be opened any more (EACCES, also for root), or can again. For this and every later plug.
    void deny(int printer = 0);
    void permit(int printer = 0);

    /// "/dev/bus/usb/001/005"; empty when not plugged.
    QString nodePath(int printer = 0) const;
    /// "/sys/bus/usb/devices/1-1".
    QString sysfsPath(int printer = 0) const;
    /// The same location that UsbDevice carries: bus << 24, one nibble per port.
    quint32 locationID(int printer = 0) const;
    /// How often programs have asked the printer for its device ID.
    int deviceIDQuestions(int printer = 0) const;
    /// How many interfaces programs have claimed now.
    int claims(int printer = 0) const;

    /// For a clock that may jump: true while something is on its way to the client without any time having to pass
    /// (a finished transfer not yet collected, reply bytes that an open claim has not read, a plug event under way).
    /// False while the client waits for something that needs the clock, or that will never come; a scripted delay is a
    /// timer of the time port and does not count.
    bool busy() const;

private:
    std::unique_ptr<UsbfsBus> m_bus;
};
