#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Who the emulated printer says it is.
struct ModelIdentity {
    QString manufacturer = QStringLiteral("Quillmark");
    QString model = QStringLiteral("QZ100");
    QString serialNumber = QStringLiteral("QM0001");
    quint16 vendorID = 0x6A1B;
    quint16 productID = 0x0001;
    /// A device without a device ID answers GET_DEVICE_ID with a stall and has no `ieee1284_id`.
    bool hasDeviceID = true;
    /// Whether it answers GET_DEVICE_ID at all, if only with a stall.
    bool answersDeviceID = true;
    /// What the two bytes ahead of the device ID say; absent: its length with them, as they should.
    std::optional<quint16> announcedIDLength{};
    QByteArray behindDeviceID{}; ///< What comes behind it.

    /// The product text of the USB descriptors: "Quillmark QZ100".
    QString product() const { return manufacturer + QLatin1Char(' ') + model; }

    /// The IEEE 1284 device ID, without its length bytes; empty when the device has none.
    QByteArray deviceID() const
    {
        if (!hasDeviceID)
            return {};
        return "MFG:" + manufacturer.toUtf8() + ";MDL:" + model.toUtf8() +
               ";CMD:ACL,PJL;CLS:PRINTER;SN:" + serialNumber.toUtf8() + ';';
    }
};
