#include "UsbNode.h"

#include <QFile>
#include <array>
#include <filesystem>
#include <grp.h>
#include <libusb.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
namespace fs = std::filesystem;

namespace
{

bool isNumber(const std::string &name)
{
    return !name.empty() && name.find_first_not_of("0123456789") == std::string::npos;
}

// A descriptor is recognised by the file it leads to: its link's text need not be the node's path.
bool hasOpen(const fs::path &process, const struct stat &node)
{
    std::error_code refused;
    for (const auto &descriptor : fs::directory_iterator(process / "fd", refused)) {
        struct stat target = {};
        if (stat(descriptor.path().c_str(), &target) == 0 && target.st_dev == node.st_dev &&
            target.st_ino == node.st_ino)
            return true;
    }
    return false;
}

} // namespace

QString usbNodePath(libusb_device *device)
{
    return u"/dev/bus/usb/%1/%2"_s.arg(libusb_get_bus_number(device), 3, 10, QChar(u'0'))
        .arg(libusb_get_device_address(device), 3, 10, QChar(u'0'));
}

QString usbNodeAccessHint(const QString &node)
{
    struct stat status = {};
    struct group entry = {};
    struct group *found = nullptr;
    std::array<char, 4096> buffer{};
    // A node of the group "root" is nobody's to join.
    if (stat(QFile::encodeName(node).constData(), &status) == 0 && status.st_gid != 0 &&
        getgrgid_r(status.st_gid, &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return u"join the group \"%1\" and log in again, or add a udev rule that grants access"_s.arg(
            QString::fromLocal8Bit(found->gr_name));
    return u"add a udev rule that grants access and plug the printer in again"_s;
}

std::optional<QString> usbNodeHolder(const QString &node)
{
    struct stat status = {};
    if (stat(QFile::encodeName(node).constData(), &status) != 0)
        return std::nullopt;
    const std::string self = std::to_string(getpid());
    std::error_code refused;
    for (const auto &process : fs::directory_iterator("/proc", refused)) {
        const std::string pid = process.path().filename();
        if (!isNumber(pid) || pid == self || !hasOpen(process.path(), status))
            continue;
        QFile name(QString::fromStdString(process.path() / "comm"));
        if (name.open(QIODevice::ReadOnly))
            return u"%1, pid %2"_s.arg(QString::fromLocal8Bit(name.readAll().trimmed()), QString::fromStdString(pid));
    }
    return std::nullopt;
}
