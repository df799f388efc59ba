#include "PrinterFacts.h"

using namespace Qt::Literals::StringLiterals;

QString portName(quint32 locationID)
{
    constexpr int busShift = 24, nibble = 4;
    QStringList ports;
    for (int shift = busShift - nibble; shift >= 0; shift -= nibble) {
        const quint32 port = (locationID >> shift) & 0xFU;
        if (port == 0)
            break;
        ports += QString::number(port);
    }
    return QString::number(locationID >> busShift) + u'-' + ports.join(u'.');
}

QString nameOf(const WTPrinter &printer)
{
    const QString serial = printer.serialNumber.isEmpty() ? QString() : u' ' + printer.serialNumber;
    return printer.printerType() + serial + u" ("_s + portName(printer.usbObj->locationID) + u')';
}

QJsonObject jsonOf(const WTPrinter &printer)
{
    return {{u"model"_s, printer.printerType()},
            {u"serial"_s, printer.serialNumber},
            {u"port"_s, portName(printer.usbObj->locationID)},
            {u"uri"_s, printer.usbObj->URI()}};
}
