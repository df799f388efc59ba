#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Builds the byte frames of printer commands. Stateless; absent bytes are an absent optional.
/// Short and long frames differ in meaning, so no overload has a default argument.
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

    /// Runs one command line in /bin/sh, blocks until the shell has ended, and answers what it wrote to standard
    /// output; absent when that is no UTF-8. A command that must not block the caller redirects its output and
    /// detaches.
    static std::optional<QString> executeShellScript(const QString &commandLine);
};
