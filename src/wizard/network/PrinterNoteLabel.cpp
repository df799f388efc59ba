#include "PrinterNoteLabel.h"

#include "DesktopPort.h"
#include "Log.h"
#include "Palette.h"
#include "PrinterNote.h"
#include "WTCUSBPrinter.h"
#include "WTManager.h"
#include "askInBackground.h"

using namespace Qt::Literals::StringLiterals;

PrinterNoteLabel::PrinterNoteLabel(DesktopPort &desktop, QWidget *parent)
    : LiveLabel({}, TextStyle::Size::Body, Palette::label, parent)
    , m_desktop(desktop)
{
    setObjectName(u"printerNote"_s);
    setTextFormat(Qt::PlainText);
}

void PrinterNoteLabel::setPrinter(const WTPrinterPtr &printer)
{
    m_printer = printer;
    tell(std::nullopt);
    const auto question = [uri = printer->usbObj->URI()] { return WTCUSBPrinter::obstacle(uri); };
    askInBackground(this, question, [this, printer](const std::optional<WTError> &obstacle) {
        if (obstacle)
            logWarning("The printer cannot be used now: %@", obstacle->message);
        if (m_printer == printer)
            tell(obstacle);
    });
}

void PrinterNoteLabel::tell(const std::optional<WTError> &obstacle)
{
    const PrinterNote note = printerNote(m_printer->printerType(), m_printer->serialNumber,
                                         WTManager::shared().printerList().count(), obstacle, m_desktop.deviceAccess());
    TextStyle::apply(*this, TextStyle::Size::Body, note.isWarning ? Palette::red : Palette::label);
    setText(note.text);
}
