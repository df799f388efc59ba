#include "PrinterNote.h"

#include "CauseText.h"
#include "Localized.h"
#include "PrinterCommand.h"
#include "TextFormat.h"

using namespace Qt::Literals::StringLiterals;

PrinterNote printerNote(const QString &printer, const QString &serialNumber, qsizetype count,
                        const std::optional<WTError> &obstacle, const DeviceAccess &access)
{
    const bool needsSerial = count > 1 && !serialNumber.isEmpty();
    const QString name = needsSerial ? printer + u", "_s + serialNumber : printer;
    if (obstacle) {
        const CauseText told = causeText(*obstacle, PrinterCommand::wakeUp, access);
        if (!told.cause.isEmpty())
            return {.text = name + u": "_s + told.cause + u' ' + told.advice, .isWarning = true};
    }
    if (count < 2)
        return {.text = formatText(localized(u"打印机：%@"_s), {FormatArgument(printer)})};
    return {.text = formatText(localized(u"已连接 %d 台打印机，将配置“%@”。要配置另一台，请先拔下这一台。"_s),
                               {count, name})};
}
