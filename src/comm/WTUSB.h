#pragma once

#include <QString>
#include <functional>
#include <optional>

/// The USB side of a printer, filled by the manager. Only one thread at a time may use it, since `URI` and `UUID` are
/// made and kept when they are first read.
class WTUSB
{
public:
    /// For data that a printer sends without being asked. Reserved.
    using ReceiveCallback = std::function<void(const QByteArray &data)>;

    /// The URI that was set; discovery sets the device's own. Without one it is made from manufacturer, printer name
    /// and serial number as "usb://M/N?serial=S", percent-encoded as a URL query, and kept.
    QString URI() const;
    void setURI(const QString &uri);

    /// A UUID text derived from the serial number, made on first read and kept; absent without a usable serial number.
    std::optional<QString> UUID() const;

    /// Upper-case hexadecimal digits, most significant first, without leading zeros; "0" for 0.
    static QString ToHex(quint16 value);

    bool WiFiCapability = false;        ///< Reserved.
    quint32 locationID = 0;             ///< Bus and port path; identifies the device in the log.
    qint32 resetNum = 50;               ///< Reserved.
    quint64 PID = 0;                    ///< Product ID, 16 bits.
    quint64 VID = 0;                    ///< Vendor ID, 16 bits.
    std::optional<QString> printerName; ///< The device's printer type as it was reported.
    std::optional<QString> serialNumber;
    std::optional<QString> manufacturer;
    std::optional<QString> DeviceID_1284; ///< Reserved.
    ReceiveCallback receiveCallback;      ///< Reserved.

private:
    mutable std::optional<QString> m_uri;
    mutable std::optional<QString> m_uuid;
};
