#include "RunStep.h"

#include "Localized.h"
#include "TextFormat.h"

using namespace Qt::Literals::StringLiterals;

QString logName(RunStep step)
{
    switch (step) {
    case RunStep::Idle:
        return u"idle"_s;
    case RunStep::Waking:
        return u"waking the printer"_s;
    case RunStep::Checking:
        return u"checking the printer's Wi-Fi capability"_s;
    case RunStep::Sending:
        return u"sending the configuration"_s;
    case RunStep::WaitingForAddress:
        return u"waiting for the printer's address"_s;
    case RunStep::Ended:
        return u"ended"_s;
    }
    Q_UNREACHABLE();
}

QString stepLine(RunStep step, int attempt)
{
    switch (step) {
    case RunStep::Idle:
    case RunStep::Ended:
        return {};
    case RunStep::Waking:
        return localized(u"正在唤醒打印机…"_s);
    case RunStep::Checking:
        return localized(u"正在检查打印机能否配置无线网络…"_s);
    case RunStep::Sending:
        return localized(u"正在发送网络名称和密码，打印机正在加入网络…"_s);
    case RunStep::WaitingForAddress:
        return formatText(localized(u"正在等待打印机的网络地址（第 %d 次，共 %d 次）…"_s),
                          {attempt + 1, addressQueries});
    }
    Q_UNREACHABLE();
}
