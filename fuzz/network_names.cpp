/// Networks and printers as the host names them: a network's flags, raw name and password, and a printer's device ID,
/// on their way to the screen, the log and the printer. Three bytes of flags, one that holds the name's length, the
/// name, the password up to a line end, the device ID.
#include "AccessPointSecurity.h"
#include "Fuzz.h"
#include "HostileName.h"
#include "Ieee1284DeviceID.h"
#include "PjlEnvelope.h"
#include "PrinterCommand.h"
#include "Utf8Text.h"
#include "WTCDevice.h"
#include "WTCommand.h"
#include "WTLogFormatter.h"
#include "WTLogMessage.h"
#include "WTWiFi.h"
#include "WiFiConfigurationPayload.h"
#include "cutText.h"
#include "untrustedText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using Fuzz::require;
using HostileName::showsAll;

namespace
{

bool isWellFormed(const QString &text)
{
    return text.isValidUtf16();
}

void checkCut(const QString &text)
{
    const QString cut = cutText(text, WiFiConfigurationPayload::nameLimit);
    require(cut.size() <= WiFiConfigurationPayload::nameLimit && text.startsWith(cut), "a cut text is a beginning");
    require(!isWellFormed(text) || isWellFormed(cut), "a cut splits no pair");
}

QString logLine(const QString &shownName)
{
    return WTLogFormatter()
        .formatLogMessage(
            WTLogMessage::initWithFormat(u"ssid:%@"_s, {FormatArgument(shownName)}, 0, WTLogFlagInfo, 0, {}, {}, 0, {}))
        .value_or(QString());
}

void checkShown(const WTWiFi &network)
{
    const QString shown = network.shownSSID().value_or(QString());
    require(showsAll(shown) && isWellFormed(shown), "a row, a field or a label shows all of a name on one line");
    require(visibleText(shown) == shown, "what is shown is shown the same");
    require(shown == network.SSID || !showsAll(*network.SSID), "a harmless name is shown as it is");
    const QString line = logLine(shown);
    require(line.endsWith(u"ssid:"_s + shown) && showsAll(line), "a name stays on its line of the log");
}

void checkFrame(const QByteArray &payload)
{
    const QByteArray frame = WTCommand::PJLWithCMD(PrinterCommand::wifiConfiguration, payload);
    require(frame.count(PjlEnvelope::universalExitLanguage) == 2, "a name neither ends the job nor begins another");
}

void checkPayload(const QString &name, const QString &password)
{
    using Payload = WiFiConfigurationPayload;
    const auto encoded = Payload::encode(name, password);
    const QByteArray secret = password.toUtf8();
    const bool sendable = isSendable(name) && isSendable(password);
    require(bool(encoded) == (secret.size() <= Payload::passwordLimit && sendable),
            "only a long password and a control character are refused");
    if (!encoded)
        return;
    const QByteArray &payload = encoded.value();
    checkFrame(payload);
    require(payload.size() == Payload::size, "the payload has its size");
    require(payload.first(Payload::nameSize) ==
                name.toUtf8().left(Payload::nameLimit).leftJustified(Payload::nameSize, '\0'),
            "the name fills its field and ends in it");
    require(payload.at(Payload::nameSize) == Payload::mark, "the mark stands behind the name");
    require(payload.sliced(Payload::nameSize + 1) == secret.leftJustified(Payload::size - Payload::nameSize - 1, '\0'),
            "the password travels whole, and nothing behind it");
}

void checkNetwork(QByteArrayView bytes, const QString &password)
{
    const QByteArrayView onAir = bytes.first(std::min(bytes.size(), HostileName::longest));
    WTWiFi network;
    network.SSID = HostileName::fromTheAir(onAir);
    const QString &name = *network.SSID;
    require(isWellFormed(name), "a name is readable");
    require(name.isEmpty() == (onAir.count('\0') == onAir.size()), "only no name is empty");
    if (utf8Text(onAir) && !name.isEmpty())
        require(name.toUtf8() == onAir, "a name that is text reaches the printer as it came");
    checkCut(name);
    checkShown(network);
    checkPayload(name, password);
}

void checkText(QByteArrayView bytes)
{
    const auto text = utf8Text(bytes);
    if (text)
        require(isWellFormed(*text) && text->toUtf8() == bytes, "a text is its bytes");
    checkCut(QString::fromLatin1(bytes));
}

void checkDeviceID(const QString &text)
{
    const Ieee1284DeviceID id(text);
    for (const QString &value : {id.manufacturer(), id.model()})
        require(value == value.trimmed() && text.contains(value) && !value.contains(u';'), "a value is one entry");
    const Ieee1284DeviceID again(u"MFG:%1;MDL:%2;"_s.arg(id.manufacturer(), id.model()));
    require(again.manufacturer() == id.manufacturer() && again.model() == id.model(), "what is read reads the same");

    UsbDevice device;
    device.ieee1284DeviceID = text;
    device.serialNumber = text;
    const WTCDevice printer = deviceFromUsb(device);
    require(std::ranges::all_of(printer.URI, [](QChar c) { return c > u' ' && c < u'\x7f'; }), "a URI is plain");
    require(showsAll(printer.printerType) && showsAll(printer.manufacturer) && showsAll(printer.serialNumber),
            "what a printer says of itself stays on its line");
    require(printer.URI.count(u'/') == 3 && printer.URI.count(u'?') == 1, "a name never ends its part of the URI");
}

void checkSecurity(std::uint8_t flags, std::uint8_t wpa, std::uint8_t rsn)
{
    // Each bit of the bytes stands for one of the eight low bits and for one of the key managements above them.
    const auto spread = [](std::uint8_t bits) { return quint32{bits} | quint32{bits} << 8; };
    WTWiFi network;
    network.security = accessPointSecurity(flags, spread(wpa), spread(rsn)).library;
    require(network.authModeLabel().has_value(), "every security has a label");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    QByteArrayView input = Fuzz::view(bytes, size);
    const auto flags = Fuzz::takeByte(input);
    const auto wpa = Fuzz::takeByte(input);
    checkSecurity(flags, wpa, Fuzz::takeByte(input));
    const qsizetype announced = Fuzz::takeByte(input);
    const qsizetype length = std::min(announced, input.size());
    const auto [password, deviceID] = Fuzz::splitAt(input.sliced(length), '\n');
    checkNetwork(input.first(length), QString::fromUtf8(password));
    checkText(input);
    checkDeviceID(QString::fromUtf8(deviceID));
    return 0;
}
