#include "ConfigurationPayload.h"

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qsizetype nameLength = 32;
constexpr qsizetype markOffset = 33;
constexpr char mark = 5;
constexpr qsizetype passwordOffset = 34;
constexpr qsizetype passwordLength = 31;
constexpr qsizetype zerosOffset = passwordOffset + passwordLength;

std::optional<qsizetype> firstNonZero(QByteArrayView bytes, qsizetype from, qsizetype to)
{
    const auto *found = std::find_if(bytes.begin() + from, bytes.begin() + to, [](char byte) { return byte != 0; });
    return found == bytes.begin() + to ? std::nullopt : std::optional(static_cast<qsizetype>(found - bytes.begin()));
}
} // namespace

QByteArray ConfigurationPayload::textAt(qsizetype offset, qsizetype length) const
{
    const QByteArrayView field = m_payload.sliced(offset, length);
    const qsizetype end = field.indexOf('\0');
    return field.first(end < 0 ? length : end).toByteArray();
}

QByteArray ConfigurationPayload::networkName() const
{
    return textAt(0, nameLength);
}

QByteArray ConfigurationPayload::password() const
{
    return textAt(passwordOffset, passwordLength);
}

std::vector<FrameProblem> ConfigurationPayload::problems() const
{
    std::vector<FrameProblem> found;
    const auto expectZeros = [&](qsizetype from, qsizetype to, const QString &where) {
        if (const auto offset = firstNonZero(m_payload, from, to))
            found.push_back({*offset, u"not zero "_s + where});
    };
    if (m_payload.front() == 0)
        found.push_back({0, u"no network name"_s});
    expectZeros(networkName().size(), markOffset, u"after the network name"_s);
    if (m_payload[markOffset] != mark)
        found.push_back({markOffset, u"not 5 between name and password"_s});
    expectZeros(passwordOffset + password().size(), zerosOffset, u"after the password"_s);
    expectZeros(zerosOffset, size, u"at the end of the payload"_s);
    return found;
}
