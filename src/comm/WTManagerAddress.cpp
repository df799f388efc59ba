#include "WTManager.h"

#include "Log.h"
#include "MainThread.h"
#include "PrinterAddress.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "Utf8Text.h"
#include "WTCommand.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

void askForAnnouncedData(const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop)
{
    logInfo("recv ACL:0x%X, header:%@", PrinterCommand::address, header);
    const auto reply = PrinterExchange::acceptedHeader(PrinterCommand::address, header, stop);
    if (!reply)
        return;
    logInfo("0xFF0F:%d", reply->result());
    if (reply->result() != 0)
        *dataLength = reply->addedLengthBytes();
}

void answer(const std::optional<QByteArray> &data, const WTManager::AddressCallback &callBack)
{
    if (!data) {
        logError("Null recv data");
        callBack(static_cast<int>(WTPrinterStatus::NoData), u"acl 获取到的数据为空!!!!!"_s);
        return;
    }
    if (data->size() < leastAddressData) {
        logError("data.length < 16");
        callBack(static_cast<int>(WTPrinterStatus::DataTooShort), u"acl 获取数据失败，失败原因：数据长度不够！"_s);
        return;
    }
    const AddressCandidates candidates = addressCandidates(*data);
    logInfo("IPv4:%@, IPv6:%@, unstatus:%@", candidates.ipv4, candidates.ipv6, candidates.unstatus);
    if (const auto address = chooseAddress(candidates)) {
        callBack(static_cast<int>(WTPrinterStatus::Success), *address);
        return;
    }
    callBack(static_cast<int>(WTPrinterStatus::NoValidAddress), u""_s);
    logError("🤢🤢🤢");
}

} // namespace

void WTManager::getIPAddressFromPrinter(const QString &uri, quint32, AddressCallback callBack)
{
    constexpr quint16 cmd = PrinterCommand::address;
    PrinterExchange::send(
        cmd, uri, WTCommand::PJLWithCMD(cmd, std::nullopt), PrinterExchange::usualTimeout, askForAnnouncedData,
        [callBack = std::move(callBack)](const std::optional<QByteArray> &data, const std::optional<WTError> &) {
            onMainThread([data, callBack] { answer(data, callBack); });
        });
}

std::optional<QString> WTManager::ipByData(const QByteArray &data, qsizetype location, qsizetype length)
{
    std::optional<QString> text;
    if (location >= 0 && length >= 0 && location <= data.size() && length <= data.size() - location) {
        const QByteArrayView field = QByteArrayView{data}.sliced(location, length);
        const qsizetype end = field.indexOf('\0');
        text = utf8Text(end < 0 ? field : field.first(end));
    }
    logInfo("IP:%@", text);
    return text;
}
