#include "WTUITestService.h"

#include "TextFormat.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <array>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr std::array outcomeSwitches{
    "wifiConfig"_L1,    "wifiConfigFailure"_L1, "wifiConfigSuccess"_L1, "WiFiError"_L1,
    "UpdatingError"_L1, "NotInstallError"_L1,   "OtherError"_L1,        "ManualInstall"_L1,
};

bool hasArgument(QLatin1StringView argument)
{
    return QCoreApplication::arguments().contains(argument);
}

QJsonValue parsed(const QString &piece, const QString &variable)
{
    const QJsonDocument document = QJsonDocument::fromJson(piece.toUtf8());
    if (document.isNull())
        throw std::invalid_argument(
            formatText("%@ holds a piece that is no JSON: '%@'", variable, piece).toStdString());
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

} // namespace

bool WTUITestService::startUITest()
{
    return hasArgument("UITest"_L1);
}

bool WTUITestService::testPrinting()
{
    return startUITest() && hasArgument("printing"_L1);
}

std::optional<QString> WTUITestService::addPassWord(const std::optional<QString> &text)
{
    if (!startUITest())
        return QString();
    if (!text || text->isEmpty())
        return text;
    return *text + (hasArgument("passwordError"_L1) ? uR"( password "24682468")"_s : uR"( password "5550123")"_s);
}

QJsonArray WTUITestService::environmentDataForUSB()
{
    return getDataWith(u"USBPrinterInfo"_s);
}

QJsonArray WTUITestService::environmentDataForNet()
{
    return getDataWith(u"NETPrinterInfo"_s);
}

QJsonArray WTUITestService::environmentDataForWiFiList()
{
    return {QJsonObject{{u"name"_s, u"UItestWifi"_s}}};
}

QJsonArray WTUITestService::getDataWith(const QString &name)
{
    QJsonArray data;
    const QByteArray variable = name.toLocal8Bit();
    if (!qEnvironmentVariableIsSet(variable.constData()))
        return data;
    for (const QString &piece : qEnvironmentVariable(variable.constData()).split(u';'))
        data.append(parsed(piece, name));
    return data;
}

bool WTUITestService::uiTestConfig(const QString &name)
{
    return qgetenv(name.toLocal8Bit().constData()) == "YES";
}

bool WTUITestService::checkUITestValues(std::size_t index)
{
    return index < outcomeSwitches.size() && uiTestConfig(outcomeSwitches[index]);
}

bool WTUITestService::testWiFiConfig()
{
    return checkUITestValues(0);
}

bool WTUITestService::testWiFiConfigFailure()
{
    return checkUITestValues(1);
}

bool WTUITestService::testWiFiConfigSuccess()
{
    return checkUITestValues(2);
}

bool WTUITestService::testWiFiError()
{
    return checkUITestValues(3);
}

bool WTUITestService::testUpdatingError()
{
    return checkUITestValues(4);
}

bool WTUITestService::testNotInstallError()
{
    return checkUITestValues(5);
}

bool WTUITestService::testOtherError()
{
    return checkUITestValues(6);
}

bool WTUITestService::testManualInstall()
{
    return checkUITestValues(7);
}
