#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Builds the byte frames of printer commands; `std::nullopt` leaves the bytes out.
///
/// An overload with one parameter more can build a different frame: `ACLWithCMD` with `autoCRC16` and `PJLWithCMD` with
/// `encrypt` always build long frames, without them short ones. Therefore no parameter has a default.
class WTCommand
{
public:
    using Bytes = std::optional<QByteArray>;

    static QByteArray ACLWithCMD(quint16 cmd);
    static QByteArray ACLWithCMD(quint16 cmd, const Bytes &data);
    static QByteArray ACLWithCMD(quint16 cmd, const Bytes &data, bool autoCRC16);
    static QByteArray ACLWithHeader(const Bytes &header, const Bytes &data);
    static QByteArray ACLWithHeader(const Bytes &header, const Bytes &data, bool autoCRC16);
    static QByteArray PJLWithACLData(const Bytes &data);
    static QByteArray PJLWithACLData(const Bytes &data, quint8 encrypt);
    static QByteArray PJLWithCMD(quint16 cmd);
    static QByteArray PJLWithCMD(quint16 cmd, const Bytes &data);
    static QByteArray PJLWithCMD(quint16 cmd, const Bytes &data, quint8 encrypt);
    static QByteArray PJLWithHeader(const Bytes &header, const Bytes &data);
    static QByteArray PJLWithHeader(const Bytes &header, const Bytes &data, quint8 encrypt);
    static quint16 CRC16(const QByteArray &data);

    /// Runs one command line in /bin/sh, blocks until the shell has ended, and returns what it wrote to standard
    /// output; absent when that is not UTF-8 or the shell cannot be started. To return at once, the command line itself
    /// must redirect its output and put its program into the background.
    static std::optional<QString> executeShellScript(const QString &commandLine);
};
