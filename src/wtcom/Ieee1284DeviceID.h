#pragma once

#include <QString>

/// A printer's IEEE 1284 device ID: "KEY:value;KEY:value;", keys in a short or a long form. Values are trimmed; empty
/// when the key is missing.
class Ieee1284DeviceID
{
public:
    explicit Ieee1284DeviceID(const QString &text);

    QString manufacturer() const { return m_manufacturer; } ///< "MFG" or "MANUFACTURER".
    QString model() const { return m_model; }               ///< "MDL" or "MODEL".

private:
    QString m_manufacturer;
    QString m_model;
};
