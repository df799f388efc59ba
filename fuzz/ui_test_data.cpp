/// What a user-interface test hands over in the environment: the input is the variable's value.
#include "Fuzz.h"
#include "WTUITestService.h"

#include <QCoreApplication>
#include <array>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;
using Fuzz::require;

namespace
{

void startAsTest()
{
    static std::array<char, 5> program{"fuzz"};
    static std::array<char, 7> argument{"UITest"};
    static std::array<char *, 2> arguments{program.data(), argument.data()};
    static int count = int(arguments.size());
    static const QCoreApplication application(count, arguments.data());
}

void checkData(const QString &value)
{
    try {
        const QJsonArray data = WTUITestService::environmentDataForUSB();
        require(data.size() == value.count(u';') + 1, "every piece is there");
        for (const auto &piece : data)
            require(piece.isObject() || piece.isArray(), "a piece is an object or an array");
    } catch (const std::invalid_argument &fault) {
        require(QByteArrayView(fault.what()).contains("USBPrinterInfo"), "a fault names its variable");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    startAsTest();
    const QByteArray value = Fuzz::splitAt(Fuzz::view(bytes, size), '\0').first.toByteArray();
    const QString text = QString::fromUtf8(value);
    qputenv("USBPrinterInfo", value);
    checkData(text);
    require(WTUITestService::uiTestConfig(u"USBPrinterInfo"_s) == (value == "YES"), "a switch is on with YES alone");
    require(WTUITestService::addPassWord(text)->startsWith(text), "a password goes behind the text");
    return 0;
}
