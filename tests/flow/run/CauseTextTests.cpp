#include "CauseText.h"
#include "PrinterAnswer.h"
#include "PrinterCommand.h"
#include "Rows.h"
#include "WTCUSBPrinter.h"

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(RunCause)

/// What a person is told of each error that can end a run. Without a language attached the texts are their keys.
class CauseTextTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void saysWhyADeviceMayNotBeUsed_data();
    void saysWhyADeviceMayNotBeUsed();
};

void CauseTextTests::text_data()
{
    const auto bus = [](RunStep step, const UsbCause &cause) {
        return RunCause{step, {wtcErrorDomain, 31, {}, cause}};
    };
    const auto reply = [](RunStep step, WTPrinterStatus status) {
        return RunCause{step, {printerErrorDomain, static_cast<int>(status), {}}};
    };
    const auto result = [](RunStep step, int code) { return RunCause{step, {printerResultDomain, code, {}}}; };
    using enum RunStep;
    const Rows<RunCause, QString, QString> row{"cause", "text", "advice"};
    row("held, holder known", bus(Checking, {UsbErrorCode::Busy, {}, u"ipp-usb"_s, 812}),
        u"“ipp-usb”（进程 812）正在使用打印机。"_s, u"请关闭该程序"_s);
    row("held, holder unknown", bus(Checking, {UsbErrorCode::Busy}), u"另一个程序正在使用打印机。"_s, u"虚拟机"_s);
    row("unplugged", bus(Sending, {UsbErrorCode::Unplugged}), u"打印机被拔下或关闭了（步骤：发送网络设置）。"_s,
        u"插好数据线"_s);
    row("not found", bus(Waking, {UsbErrorCode::NotFound}), u"在 USB 上找不到打印机。"_s, u"插好数据线"_s);
    row("silent for a minute", bus(WaitingForAddress, {UsbErrorCode::TimedOut}),
        u"打印机在 60 秒内没有响应（步骤：查询打印机的地址）。"_s, u"10 秒"_s);
    row("silent for three", bus(Sending, {UsbErrorCode::TimedOut}),
        u"打印机在 180 秒内没有响应（步骤：发送网络设置）。"_s, u"10 秒"_s);
    row("silent at first", bus(Waking, {UsbErrorCode::TimedOut}), u"打印机在 6 秒内没有响应（步骤：唤醒打印机）。"_s,
        u"10 秒"_s);
    row("a stall", bus(Checking, {UsbErrorCode::Stalled}),
        u"与打印机的 USB 通信出错（步骤：询问打印机能否使用 Wi-Fi）。"_s, u"另一个 USB 接口"_s);
    row("another command's reply", reply(Checking, WTPrinterStatus::CommandMismatch),
        u"打印机给出了意外的响应（步骤：询问打印机能否使用 Wi-Fi）。"_s, u"售后服务"_s);
    row("no address", reply(WaitingForAddress, WTPrinterStatus::NoData),
        u"打印机收到了设置，但没有从路由器得到地址。"_s, u"重新启动路由器"_s);
    row("no text that is an address", reply(WaitingForAddress, WTPrinterStatus::NoValidAddress),
        u"打印机收到了设置，但没有从路由器得到地址。"_s, u"重新启动路由器"_s);
    row("refused", result(Sending, 2), u"打印机拒绝了网络设置，最可能的原因是密码不对。"_s, u"2.4 GHz"_s);
    row("refused, Wi-Fi off", result(Sending, 0xFFFB), u"打印机配置失败，当前打印机网络未开启，无法进行配网。"_s,
        u"打开Wi-Fi功能"_s);
    row("refused, updating", result(Sending, 0xFFFC), u"打印机配置失败，系统升级过程中，不允许配置网络。"_s,
        u"升级完成"_s);
    row("does not say whether it can", result(Checking, 0xFFFC), u"打印机没有说明能否配置 Wi-Fi。"_s, u"售后服务"_s);
    row("no module, which the headline says", result(Checking, 0xFFFE), {}, {});
}

void CauseTextTests::text()
{
    QFETCH(RunCause, cause);
    QFETCH(QString, advice);
    const CauseText told = causeText(cause, {});
    QTEST(told.cause, "text");
    QVERIFY2(told.advice.contains(advice), qPrintable(told.advice));
    QCOMPARE(told.advice.isEmpty(), told.cause.isEmpty());
}

void CauseTextTests::saysWhyADeviceMayNotBeUsed_data()
{
    const Rows<bool, bool, QString> row{"ruleInstalled", "isOnSeat", "said"};
    row("no rule", false, true, u"60-wifitool.rules"_s);
    row("no rule, which comes first", false, false, u"60-wifitool.rules"_s);
    row("from afar", true, false, u"远程"_s);
    row("plugged in before the rule", true, true, u"还没有"_s);
}

void CauseTextTests::saysWhyADeviceMayNotBeUsed()
{
    QFETCH(bool, ruleInstalled);
    QFETCH(bool, isOnSeat);
    QFETCH(QString, said);
    const WTError denied{wtcErrorDomain, 31, {}, UsbCause{UsbErrorCode::PermissionDenied}};
    const CauseText told = causeText(denied, PrinterCommand::informationPage, {ruleInstalled, isOnSeat});
    QVERIFY2(told.cause.contains(said), qPrintable(told.cause));
}

QTEST_GUILESS_MAIN(CauseTextTests)
#include "CauseTextTests.moc"
