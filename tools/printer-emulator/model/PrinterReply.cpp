#include "PrinterReply.h"

#include "FrameLayout.h"

#include <QtEndian>
#include <algorithm>
#include <random>

using namespace FrameLayout;

namespace
{
constexpr quint32 largestRandomSlice = 40;

std::vector<qsizetype> sliceSizes(const PrinterFault &fault, qsizetype total)
{
    std::vector<qsizetype> sizes;
    qsizetype covered = 0;
    for (const qsizetype wanted : fault.slices) {
        const qsizetype size = std::min(wanted, total - covered);
        if (size == 0 && wanted > 0)
            break;
        sizes.push_back(size);
        covered += size;
    }
    std::mt19937 random(fault.sliceSeed.value_or(0));
    while (covered < total) {
        const qsizetype rest = total - covered;
        sizes.push_back(fault.sliceSeed
                            ? std::min<qsizetype>(rest, 1 + static_cast<qsizetype>(random() % largestRandomSlice))
                            : rest);
        covered += sizes.back();
    }
    return sizes;
}
} // namespace

QByteArray PrinterReply::bytes(const PrinterFault &fault) const
{
    const QByteArray content = fault.data.value_or(data);
    QByteArray header(replyHeaderSize, '\0');
    const auto put = [&header](qsizetype offset, quint16 number) { qToBigEndian(number, header.data() + offset); };
    header[0] = static_cast<char>(magic[0]);
    header[1] = static_cast<char>(magic[1]);
    put(2, fault.echo.value_or(command));
    put(4, fault.result.value_or(result));
    put(6, fault.lengthField.value_or(static_cast<quint16>(content.size())));
    return fault.garbage + header + (fault.noData ? QByteArray() : content) + fault.trailingGarbage;
}

std::vector<InTransfer> PrinterReply::transfers(const PrinterFault &fault) const
{
    if (fault.silent)
        return {};

    QByteArray said = bytes(fault);
    if (fault.cutAt)
        said.truncate(*fault.cutAt);
    else if (fault.stallIn)
        said.clear();
    if (fault.unplugIn)
        said.truncate(*fault.unplugIn);

    std::vector<InTransfer> transfers;
    qsizetype offset = 0;
    for (const qsizetype size : sliceSizes(fault, said.size())) {
        transfers.push_back({InTransfer::Kind::Data, said.sliced(offset, size), fault.sliceDelay});
        offset += size;
    }
    if (fault.unplugIn)
        transfers.push_back({InTransfer::Kind::Unplug, {}, fault.sliceDelay});
    else if (fault.stallIn)
        transfers.push_back({InTransfer::Kind::Stall, {}, fault.sliceDelay});
    if (!transfers.empty())
        transfers.front().delay = time + fault.delay;
    return transfers;
}
