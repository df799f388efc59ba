#include "NetworkHint.h"

#include "Localized.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// What a kind of network asks for.
struct Demands {
    bool password = false;
    bool userName = false;
    bool wpa3 = false;
};

/// The index is the library's security number. Nothing is said of "other", whose demands nobody knows.
constexpr std::array<Demands, 14> demandsBySecurity{{
    {},                               // other
    {},                               // open
    {.password = true},               // WEP
    {.password = true},               // WPA-Personal
    {.userName = true},               // WPA-Enterprise
    {.password = true},               // WPA/WPA2-Personal
    {.userName = true},               // WPA/WPA2-Enterprise
    {.password = true},               // WPA2-Personal
    {.userName = true},               // WPA2-Enterprise
    {.password = true},               // WPA2/WPA3-Personal
    {.userName = true},               // WPA2/WPA3-Enterprise
    {.password = true, .wpa3 = true}, // WPA3-Personal
    {.userName = true, .wpa3 = true}, // WPA3-Enterprise
    {},                               // OWE
}};

Demands demandsOf(const WTWiFi *listed)
{
    const bool known = listed && listed->security >= 0 && listed->security < qint64{demandsBySecurity.size()};
    return known ? demandsBySecurity[static_cast<std::size_t>(listed->security)] : Demands{};
}

bool hasBlankAtAnEnd(const QString &text)
{
    return text != text.trimmed();
}

} // namespace

NetworkHint networkHint(const NetworkEntry &entry, const WTWiFi *listed)
{
    const Demands demands = demandsOf(listed);
    const std::array<std::pair<bool, NetworkHint>, 6> hints{{
        {demands.userName, NetworkHint::UserName},
        {demands.password && entry.password.isEmpty(), NetworkHint::NoPassword},
        {demands.wpa3, NetworkHint::OnlyWpa3},
        {listed && listed->only5GHz, NetworkHint::Only5GHz},
        {hasBlankAtAnEnd(entry.name), NetworkHint::BlankInName},
        {hasBlankAtAnEnd(entry.password), NetworkHint::BlankInPassword},
    }};
    const auto first = std::find_if(hints.begin(), hints.end(), [](const auto &hint) { return hint.first; });
    return first == hints.end() ? NetworkHint::None : first->second;
}

QString hintText(NetworkHint hint)
{
    switch (hint) {
    case NetworkHint::None:
        break;
    case NetworkHint::UserName:
        return localized(u"此网络还要求用户名，而用户名无法发送给打印机。"_s);
    case NetworkHint::NoPassword:
        return localized(u"此网络需要密码，您还没有输入。"_s);
    case NetworkHint::OnlyWpa3:
        return localized(u"此网络只接受 WPA3，有些打印机不支持。"_s);
    case NetworkHint::Only5GHz:
        return localized(u"此网络只有 5 GHz，许多打印机需要 2.4 GHz。"_s);
    case NetworkHint::BlankInName:
        return localized(u"名称的开头或结尾有空格。"_s);
    case NetworkHint::BlankInPassword:
        return localized(u"密码的开头或结尾有空格。"_s);
    }
    return {};
}
