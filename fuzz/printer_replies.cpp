/// What a printer answers: a whole exchange over a wire that carries the input in slices, the checks of its header, and
/// the reading of its address data. The first two bytes choose the command and the size of a slice.
#include "AclExchange.h"
#include "DeviceTurns.h"
#include "Fuzz.h"
#include "LibraryLog.h"
#include "PrinterAddress.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "SlicedWire.h"
#include "WTCDevice.h"
#include "WTManager.h"

#include <QStringList>
#include <arpa/inet.h>
#include <array>

using Fuzz::require;

namespace
{

constexpr std::array commands{PrinterCommand::wakeUp, PrinterCommand::wifiCapability, PrinterCommand::wifiConfiguration,
                              PrinterCommand::address, PrinterCommand::informationPage};

/// What the two callbacks of an exchange received.
struct Received {
    int heads = 0;
    int datas = 0;
    QByteArray header;
    quint32 asked = 0;
    std::optional<QByteArray> data;
    bool failed = false;
};

Received exchange(SlicedWire &wire, quint16 command)
{
    StandingTime time;
    LibraryLog log;
    DeviceTurns turns;
    Received received;
    const auto judge = PrinterExchange::usualHeadCallback(command, std::make_shared<PrinterExchange::ReplyHead>());
    AclRequest request;
    request.URI = deviceFromUsb(SlicedWire::printer()).URI;
    request.headSize = kACLHeadSize;
    request.timeout = PrinterExchange::timeoutOf(PrinterCommand::address);
    request.headCallback = [&](const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop) {
        ++received.heads;
        require(received.datas == 0, "the head callback comes first");
        received.header = header.value_or(QByteArray());
        judge(header, dataLength, stop);
        received.asked = *stop ? 0 : *dataLength;
    };
    request.dataCallback = [&](const std::optional<QByteArray> &data, const std::optional<WTError> &error) {
        ++received.datas;
        received.data = data;
        received.failed = error.has_value();
    };
    AclExchange({wire, time, log, turns, {}}, std::move(request)).run();
    return received;
}

void checkExchange(QByteArrayView bytes, quint16 command, qsizetype slice)
{
    SlicedWire wire(bytes, slice);
    const Received received = exchange(wire, command);
    require(received.heads == 1 && received.datas == 1, "each callback comes once");
    require(received.header == bytes.first(std::min<qsizetype>(bytes.size(), kACLHeadSize)), "the header is what came");
    require(received.failed == (bytes.size() < kACLHeadSize + qsizetype(received.asked)), "only a short reply fails");
    require(received.data.has_value() == (!received.failed && received.asked > 0), "data is whole or absent");
    if (received.data)
        require(*received.data == bytes.sliced(kACLHeadSize, received.asked), "the data is what came");
    require(received.failed || bytes.size() - wire.bytesLeft() == kACLHeadSize + qsizetype(received.asked),
            "nothing behind the reply is read");
}

void checkReplyCheck(const QByteArray &header, quint16 command)
{
    bool stop = false;
    const auto accepted = PrinterExchange::acceptedHeader(command, header, &stop);
    require(accepted.has_value() != stop, "a header is accepted or stops the exchange");
    require(!accepted || (header.size() == kACLHeadSize && accepted->command() == command), "accepted means matching");
    int answers = 0;
    WTManager::wt_cmd(command, header, [&](const ResultAnswer &answer) {
        ++answers;
        const bool success = answer.status == WTPrinterStatus::Success;
        const AclReplyHeader reply(header);
        require(success == (header.size() >= AclReplyHeader::leastSize && reply.command() == command),
                "success means a matching command");
        require(answer.result == (success ? reply.result() : 0), "the result is the header's");
    });
    require(answers == 1, "one header, one answer");
}

bool isIPv4ByParts(const QString &text)
{
    const QStringList parts = text.split(u'.');
    return parts.size() == 4 && std::ranges::all_of(parts, [](const QString &part) {
               bool isNumber = false;
               return part.toUInt(&isNumber) <= 255 && isNumber && part.size() <= 3;
           });
}

bool isIPv6BySystem(const QString &text)
{
    in6_addr address{};
    // The system refuses leading zeros in an embedded IPv4 address, which printers may send.
    return text.contains(u'.') || inet_pton(AF_INET6, text.toLatin1().constData(), &address) == 1;
}

void checkAddress(const QByteArray &data)
{
    const auto chosen = chooseAddress(addressCandidates(data));
    if (!chosen)
        return;
    require(chosen->size() <= unstatusField.size, "an address fits its field");
    require(isIPv4Address(*chosen) != isIPv6Address(*chosen), "an address is of one kind");
    require(isIPv4Address(*chosen) ? isIPv4ByParts(*chosen) : isIPv6BySystem(*chosen), "others agree on the address");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    QByteArrayView input = Fuzz::view(bytes, size);
    const std::uint8_t choice = Fuzz::takeByte(input);
    const quint16 command = commands.at(choice % commands.size());
    const qsizetype slice = 1 + Fuzz::takeByte(input);
    checkExchange(input, command, slice);
    checkReplyCheck(input.first(std::min<qsizetype>(input.size(), 2 * kACLHeadSize)).toByteArray(), command);
    checkAddress(input.toByteArray());
    checkAddress(input.sliced(std::min<qsizetype>(input.size(), kACLHeadSize)).toByteArray());
    return 0;
}
