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

constexpr quint16 cmd = PrinterCommand::address;

WTCUSBPrinter::HeadCallback askForAnnouncedData(PrinterExchange::KeptHead head)
{
    return [head = std::move(head)](const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop) {
        logInfo("recv ACL:0x%X, header:%@", cmd, describeReplyHeader(header));
        head->fault = PrinterExchange::headerFault(cmd, header);
        const auto reply = PrinterExchange::acceptedHeader(cmd, header, stop);
        if (!reply)
            return;
        head->header = header;
        logInfo("0xFF0F:%d", reply->result());
        if (reply->result() != 0)
            *dataLength = reply->addedLengthBytes();
    };
}

/// A candidate for the log, shown only if it is an address: a printer may send anything in its place, the network's
/// password too.
std::optional<QString> describeCandidate(const std::optional<QString> &text)
{
    if (!text || text->isEmpty() || isIPv4Address(*text) || isIPv6Address(*text))
        return text;
    return formatText("{no address, length = %ld}", text->size());
}

WTError faultyData(WTPrinterStatus status, const QString &message)
{
    return {printerErrorDomain, static_cast<int>(status), message};
}

/// Why no data came. A printer that has no address yet answers without data, too.
WTError absence(const std::optional<WTError> &error, const PrinterExchange::ReplyHead &head)
{
    if (error || !head.header)
        return PrinterExchange::cause(cmd, error, head);
    return faultyData(WTPrinterStatus::NoData, formatText("the reply to 0x%X announces no data", cmd));
}

AddressAnswer answerWithoutData(const WTError &cause)
{
    logError("Null recv data");
    return {WTPrinterStatus::NoData, u"acl 获取到的数据为空!!!!!"_s, cause};
}

AddressAnswer answerWithShortData(qsizetype size)
{
    logError("data.length < 16");
    return {
        WTPrinterStatus::DataTooShort, u"acl 获取数据失败，失败原因：数据长度不够！"_s,
        faultyData(WTPrinterStatus::DataTooShort, formatText("the reply to 0x%X has %ld bytes of data", cmd, size))};
}

void answer(const QByteArray &data, const WTManager::AddressCallback &callBack)
{
    const AddressCandidates candidates = addressCandidates(data);
    logInfo("IPv4:%@, IPv6:%@, unstatus:%@", describeCandidate(candidates.ipv4), describeCandidate(candidates.ipv6),
            describeCandidate(candidates.unstatus));
    if (const auto address = chooseAddress(candidates)) {
        callBack({WTPrinterStatus::Success, *address});
        return;
    }
    callBack({WTPrinterStatus::NoValidAddress, u""_s,
              faultyData(WTPrinterStatus::NoValidAddress, formatText("the reply to 0x%X holds no address", cmd))});
    logError("🤢🤢🤢");
}

} // namespace

void WTManager::getIPAddressFromPrinter(const QString &uri, quint32, AddressCallback callBack)
{
    const auto head = std::make_shared<PrinterExchange::ReplyHead>();
    PrinterExchange::send(cmd, uri, WTCommand::PJLWithCMD(cmd, std::nullopt), askForAnnouncedData(head),
                          [head, callBack = std::move(callBack)](const std::optional<QByteArray> &data,
                                                                 const std::optional<WTError> &error) {
                              onMainThread([head, data, error, callBack] {
                                  if (!data)
                                      callBack(answerWithoutData(absence(error, *head)));
                                  else if (data->size() < leastAddressData)
                                      callBack(answerWithShortData(data->size()));
                                  else
                                      answer(*data, callBack);
                              });
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
    logInfo("IP:%@", describeCandidate(text));
    return text;
}
