#pragma once

#include <QString>

/// Who has an interface: nobody, the kernel's driver, or one program by way of usbfs. The rules are the kernel's, and
/// so are the answers: 0 or above, or a negative errno.
class InterfaceBinding
{
public:
    /// Stands for an open descriptor; only compared.
    using Program = const void *;

    explicit InterfaceBinding(bool hasKernelDriver)
        : m_hasKernelDriver(hasKernelDriver)
    {
        connect();
    }

    /// "usblp", "usbfs", or empty.
    QString driver() const;
    bool isClaimedBy(Program program) const { return program && m_program == program; }
    bool isClaimed() const { return m_program; }
    bool hasKernelDriverBound() const { return m_kernelDriverBound; }

    int claim(Program program);
    int release(Program program);
    /// Throws out whoever has the interface.
    int disconnect();
    /// 1 when a driver took the interface, 0 when there is none for it.
    int connect();
    /// Throws out the driver that is bound, if any, and claims. -EBUSY when that driver is `exceptDriver`, or when
    /// `onlyDriver` is not empty and names another.
    int disconnectAndClaim(Program program, const QString &exceptDriver, const QString &onlyDriver);

    void setKernelDriver(bool present);

private:
    bool m_hasKernelDriver;
    bool m_kernelDriverBound = false;
    Program m_program = nullptr;
};
