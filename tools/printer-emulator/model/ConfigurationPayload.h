#pragma once

#include "ReceivedFrame.h"

#include <QByteArrayView>

/// The payload that names a network:
///
///     name (32) and a zero | 5 | password (31) | zeros (143)
///
/// Name and password end at their first zero byte or fill their field.
class ConfigurationPayload
{
public:
    static constexpr qsizetype size = 208;

    /// `payload` holds `size` bytes and outlives this object.
    explicit ConfigurationPayload(QByteArrayView payload)
        : m_payload(payload)
    {
    }

    QByteArray networkName() const;
    QByteArray password() const;
    /// What breaks the layout; offsets count from the start of the payload.
    std::vector<FrameProblem> problems() const;

private:
    QByteArray textAt(qsizetype offset, qsizetype length) const;

    QByteArrayView m_payload;
};
