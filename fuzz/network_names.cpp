/// Networks and printers as the host names them: a network's flags, raw name and password, and a printer's device ID.
/// Three bytes of flags, then texts parted by line ends.
#include "AccessPointSecurity.h"
#include "Fuzz.h"
#include "GlibPointer.h"
#include "Ieee1284DeviceID.h"
#include "Utf8Text.h"
#include "WTCDevice.h"
#include "WTWiFi.h"
#include "WifiConfigurationPayload.h"
#include "WirelessDevice.h"
#include "cutText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using Fuzz::require;

namespace
{

constexpr qsizetype longestAirName = 32;

bool isWellFormed(const QString &text)
{
    return text.isValidUtf16();
}

QString nameFromTheAir(QByteArrayView bytes)
{
    GBytes *raw = g_bytes_new(bytes.data(), gsize(bytes.size()));
    const QString name = readableName(raw);
    g_bytes_unref(raw);
    return name;
}

void checkCut(const QString &text)
{
    const QString cut = cutText(text, WifiConfigurationPayload::nameLimit);
    require(cut.size() <= WifiConfigurationPayload::nameLimit && text.startsWith(cut), "a cut text is a beginning");
    require(!isWellFormed(text) || isWellFormed(cut), "a cut splits no pair");
}

void checkPayload(const QString &name, const QString &password)
{
    using Payload = WifiConfigurationPayload;
    const auto payload = Payload::encode(name, password);
    const QByteArray secret = password.toUtf8();
    require(payload.has_value() == (secret.size() <= Payload::passwordLimit), "only a long password is refused");
    if (!payload)
        return;
    require(payload->size() == Payload::size, "the payload has its size");
    require(payload->first(Payload::nameSize) ==
                name.toUtf8().left(Payload::nameLimit).leftJustified(Payload::nameSize, '\0'),
            "the name fills its field and ends in it");
    require(payload->at(Payload::nameSize) == Payload::mark, "the mark stands behind the name");
    require(payload->sliced(Payload::nameSize + 1) == secret.leftJustified(Payload::size - Payload::nameSize - 1, '\0'),
            "the password travels whole, and nothing behind it");
}

void checkNetwork(QByteArrayView bytes, const QString &password)
{
    const QByteArrayView onAir = bytes.first(std::min(bytes.size(), longestAirName));
    const QString name = nameFromTheAir(onAir);
    require(isWellFormed(name), "a name is readable");
    // A zero byte ends a name: what stands behind it could not be told to a printer.
    require(name.isEmpty() == (onAir.isEmpty() || onAir.front() == '\0'), "only no name is empty");
    if (utf8Text(onAir) && !onAir.contains('\0'))
        require(name.toUtf8() == onAir, "a name that is text reaches the printer as it came");
    checkCut(name);
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
    const auto [name, rest] = Fuzz::splitAt(input, '\n');
    const auto [password, deviceID] = Fuzz::splitAt(rest, '\n');
    checkNetwork(name, QString::fromUtf8(password));
    checkText(input);
    checkDeviceID(QString::fromUtf8(deviceID));
    return 0;
}
