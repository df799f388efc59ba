#include "CauseText.h"
#include "PrinterAnswer.h"
#include "PrinterCommand.h"
#include "Rows.h"
#include "WTCUSBPrinter.h"

using namespace Qt::Literals::StringLiterals;

/// What a person is told of each error that can end a run. Without a language attached the texts are their keys.
class RunTextTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text()
    {
        const auto bus = [](RunStep step, const UsbCause &cause) {
            return RunCause{step, {wtcErrorDomain, 31, {}, cause}};
        };
        const auto reply = [](RunStep step, WTPrinterStatus status) {
            return RunCause{step, {printerErrorDomain, static_cast<int>(status), {}}};
        };
        const auto result = [](RunStep step, int code) { return RunCause{step, {printerResultDomain, code, {}}}; };
        using enum RunStep;
        eachRow(
            {
                {"held, holder known", bus(Checking, {UsbErrorCode::Busy, {}, u"ipp-usb"_s, 812}),
                 u"“ipp-usb”（进程 812）正在使用打印机。"_s, u"请关闭该程序"_s},
                {"unplugged", bus(Sending, {UsbErrorCode::Unplugged}),
                 u"打印机被拔下或关闭了（步骤：发送网络设置）。"_s, u"插好数据线"_s},
                {"not found", bus(Waking, {UsbErrorCode::NotFound}), u"在 USB 上找不到打印机。"_s, u"插好数据线"_s},
                {"silent at first", bus(Waking, {UsbErrorCode::TimedOut}),
                 u"打印机在 6 秒内没有响应（步骤：唤醒打印机）。"_s, u"10 秒"_s},
                {"a stall", bus(Checking, {UsbErrorCode::Stalled}),
                 u"与打印机的 USB 通信出错（步骤：询问打印机能否使用 Wi-Fi）。"_s, u"另一个 USB 接口"_s},
                {"another command's reply", reply(Checking, WTPrinterStatus::CommandMismatch),
                 u"打印机给出了意外的响应（步骤：询问打印机能否使用 Wi-Fi）。"_s, u"售后服务"_s},
                {"no address", reply(WaitingForAddress, WTPrinterStatus::NoData),
                 u"打印机收到了设置，但没有从路由器得到地址。"_s, u"重新启动路由器"_s},
                {"refused", result(Sending, 2), u"打印机拒绝了网络设置，最可能的原因是密码不对。"_s, u"2.4 GHz"_s},
                {"refused, Wi-Fi off", result(Sending, 0xFFFB),
                 u"打印机配置失败，当前打印机网络未开启，无法进行配网。"_s, u"打开Wi-Fi功能"_s},
                {"does not say whether it can", result(Checking, 0xFFFC), u"打印机没有说明能否配置 Wi-Fi。"_s,
                 u"售后服务"_s},
                {"no module, which the headline says", result(Checking, 0xFFFE), {}, {}},
            },
            [&](const RunCause &cause, const QString &text, const QString &advice) {
                const CauseText told = causeText(cause, {});
                QCOMPARE(told.cause, text);
                QVERIFY2(told.advice.contains(advice), qPrintable(told.advice));
                QCOMPARE(told.advice.isEmpty(), told.cause.isEmpty());
            });
    }

    void saysWhyADeviceMayNotBeUsed()
    {
        eachRow(
            {
                {"no rule", false, true, u"60-wifitool.rules"_s},
                {"from afar", true, false, u"远程"_s},
                {"plugged in before the rule", true, true, u"还没有"_s},
            },
            [&](bool ruleInstalled, bool isOnSeat, const QString &said) {
                const WTError denied{wtcErrorDomain, 31, {}, UsbCause{UsbErrorCode::PermissionDenied}};
                const CauseText told = causeText(denied, PrinterCommand::informationPage, {ruleInstalled, isOnSeat});
                QVERIFY2(told.cause.contains(said), qPrintable(told.cause));
            });
    }
};

QTEST_GUILESS_MAIN(RunTextTests)
#include "RunTextTests.moc"
