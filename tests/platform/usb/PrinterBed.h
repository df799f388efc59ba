#pragma once

#include "EmulatedCommand.h"
#include "UsbTestBed.h"
#include "commandFrame.h"

inline constexpr auto wakeUp = EmulatedCommand::WakeUp;

inline QByteArray someData(int size)
{
    QByteArray data;
    for (int i = 0; i < size; ++i)
        data += char(i * 7);
    return data;
}

/// A bed with one printer that answers as one fault says.
struct PrinterBed : UsbTestBed {
    explicit PrinterBed(const PrinterFault &fault = {}, const UsbShape &shape = {})
    {
        bus.addPrinter(PrinterModel(), shape);
        answer(fault);
        bus.plug();
    }

    void answer(PrinterFault fault)
    {
        fault.command = wakeUp;
        PrinterScript script;
        script.faults.push_back(std::move(fault));
        bus.setScript(script);
    }

    WTResult<std::unique_ptr<UsbConnection>> open()
    {
        return await([this] { return port.open(port.devices({ModelIdentity().vendorID}).at(0)); });
    }

    std::optional<WTError> obstacle()
    {
        return await([this] { return port.obstacle(port.devices({ModelIdentity().vendorID}).at(0)); });
    }

    /// The connection of a printer that must be there.
    std::unique_ptr<UsbConnection> connect()
    {
        auto opened = open();
        if (!opened)
            qFatal("%s", qPrintable(opened.error().message));
        return std::move(opened.value());
    }

    std::optional<WTError> write(UsbConnection &connection)
    {
        return await([&] { return connection.write(commandFrame(wakeUp)); });
    }

    /// Reads until there are `size` bytes, and tells what ended it before that.
    std::optional<WTError> read(UsbConnection &connection, qsizetype size, QByteArray &bytes)
    {
        return await([&]() -> std::optional<WTError> {
            while (bytes.size() < size) {
                const auto slice = connection.read(size - bytes.size());
                if (!slice)
                    return slice.error();
                if (slice.value().size() > size - bytes.size())
                    qFatal("More was read than asked for.");
                bytes += slice.value();
            }
            return std::nullopt;
        });
    }

    QString nodeCause(const QString &what, const QString &cause) const
    {
        return QStringLiteral("%1 %2: %3").arg(what, bus.nodePath(), cause);
    }
};

/// 0: no error.
inline int codeOf(const std::optional<WTError> &error)
{
    return error ? error->code : 0;
}

constexpr int code(UsbErrorCode code)
{
    return static_cast<int>(code);
}
