#include "InterfaceBinding.h"

#include <cerrno>

using namespace Qt::Literals::StringLiterals;

QString InterfaceBinding::driver() const
{
    if (m_program)
        return u"usbfs"_s;
    return m_kernelDriverBound ? u"usblp"_s : QString();
}

int InterfaceBinding::claim(Program program)
{
    if (isClaimedBy(program))
        return 0;
    if (m_program || m_kernelDriverBound)
        return -EBUSY;
    m_program = program;
    return 0;
}

int InterfaceBinding::release(Program program)
{
    if (!isClaimedBy(program))
        return -EINVAL;
    m_program = nullptr;
    return 0;
}

int InterfaceBinding::disconnect()
{
    if (!m_program && !m_kernelDriverBound)
        return -ENODATA;
    m_program = nullptr;
    m_kernelDriverBound = false;
    return 0;
}

int InterfaceBinding::connect()
{
    if (m_program || m_kernelDriverBound)
        return -EBUSY;
    m_kernelDriverBound = m_hasKernelDriver;
    return m_kernelDriverBound ? 1 : 0;
}

int InterfaceBinding::disconnectAndClaim(Program program, const QString &exceptDriver, const QString &onlyDriver)
{
    const QString bound = driver();
    if (!bound.isEmpty()) {
        if (bound == exceptDriver || (!onlyDriver.isEmpty() && bound != onlyDriver))
            return -EBUSY;
        disconnect();
    }
    return claim(program);
}

void InterfaceBinding::setKernelDriver(bool present)
{
    m_hasKernelDriver = present;
    if (!present)
        m_kernelDriverBound = false;
    else if (!m_program)
        m_kernelDriverBound = true;
}
