#include "AddressPanel.h"

#include "ButtonSchemes.h"
#include "CopyButton.h"
#include "LiveLabel.h"
#include "Localized.h"
#include "Log.h"
#include "Palette.h"
#include "SpoolerPort.h"
#include "askInBackground.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr std::chrono::seconds checkLimit{5};

const char *logName(PrinterReach reach)
{
    switch (reach) {
    case PrinterReach::Answers:
        return "answers";
    case PrinterReach::Refuses:
        return "refuses connections of";
    case PrinterReach::Silent:
        return "does not answer";
    }
    Q_UNREACHABLE();
}

QString reachText(PrinterReach reach)
{
    switch (reach) {
    case PrinterReach::Answers:
        return localized(u"此电脑可以连上打印机。"_s);
    case PrinterReach::Refuses:
        return localized(u"此电脑可以连上打印机，但打印机不接受网络打印（IPP）。"_s);
    case PrinterReach::Silent:
        return localized(u"此电脑连不上打印机。打印机可能在另一个网络上，或在会隔离设备的访客网络上。"_s);
    }
    Q_UNREACHABLE();
}

} // namespace

AddressPanel::AddressPanel(SpoolerPort &spooler, QWidget *parent)
    : QWidget(parent)
    , m_spooler(spooler)
    , m_address(TextStyle::makeLabel({}, TextStyle::Size::Large, Palette::heading))
    , m_copy(new CopyButton(localized(u"复制地址"_s)))
    , m_open(new WTButton)
    , m_reach(new LiveLabel({}, TextStyle::Size::Small, Palette::label))
{
    m_address->setObjectName(u"printerAddress"_s);
    m_address->setTextFormat(Qt::PlainText);
    m_address->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_address->setAccessibleName(localized(u"打印机地址"_s));
    m_copy->setObjectName(u"copyAddress"_s);
    m_open->setObjectName(u"openPrinterPage"_s);
    m_open->setTitle(localized(u"打开打印机的网页"_s));
    ButtonSchemes::applyBlue(*m_open);
    m_reach->setObjectName(u"reach"_s);
    connect(m_open, &QAbstractButton::clicked, this, &AddressPanel::openPage);

    auto *line = new QHBoxLayout;
    line->setSpacing(8);
    line->addWidget(TextStyle::makeLabel(localized(u"打印机地址"_s), TextStyle::Size::Body, Palette::label), 0,
                    Qt::AlignBaseline);
    line->addWidget(m_address, 1, Qt::AlignBaseline);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_copy);
    buttons->addWidget(m_open);
    buttons->addWidget(m_copy->answer(), 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(8);
    layout->addLayout(line);
    layout->addLayout(buttons);
    layout->addWidget(m_reach);
    hide();
}

void AddressPanel::setAddress(const QString &address)
{
    m_address->setText(address);
    m_copy->setCopiedText(address);
    setVisible(!address.isEmpty());
    if (address.isEmpty())
        return;
    m_reach->setText(localized(u"正在检查此电脑能否连上打印机…"_s));
    check(address);
}

void AddressPanel::check(const QString &address)
{
    const auto question = [&spooler = m_spooler, address] {
        const PrinterReach reach = spooler.printerReach(address, checkLimit);
        logInfo("The printer at %@ %@ this computer.", address, logName(reach));
        return reach;
    };
    askInBackground(this, question, [this, address](PrinterReach reach) {
        if (m_address->text() == address)
            m_reach->setText(reachText(reach));
    });
}

void AddressPanel::openPage()
{
    QUrl page;
    page.setScheme(u"http"_s);
    page.setHost(m_address->text());
    page.setPath(u"/"_s);
    QDesktopServices::openUrl(page);
}
