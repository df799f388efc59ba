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

// A descriptor is recognised by the file it leads to, since its link need not read like the node's path: the program
// may run in a container. Only links into a device folder are followed. To follow one to a network drive that has gone
// away could wait for ever.
bool mayBeNode(const std::string &link, const std::string &node)
{
    return link.starts_with("/dev/") || link.ends_with(node.substr(std::string_view("/dev").size()));
}

bool hasOpen(const fs::path &process, const std::string &path, const struct stat &node)
{
    std::error_code refused;
    for (const auto &descriptor : fs::directory_iterator(process / "fd", refused)) {
        std::error_code gone;
        struct stat target = {};
        if (mayBeNode(fs::read_symlink(descriptor.path(), gone), path) &&
            stat(descriptor.path().c_str(), &target) == 0 && target.st_dev == node.st_dev &&
            target.st_ino == node.st_ino)
            return true;
    }
    return false;
}

QString nameOf(const fs::path &process)
{
    QFile name(QString::fromStdString(process / "comm"));
    if (!name.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLocal8Bit(name.readAll().trimmed());
}

} // namespace

QString usbNodePath(libusb_device *device)
{
    return u"/dev/bus/usb/%1/%2"_s.arg(libusb_get_bus_number(device), 3, 10, QChar(u'0'))
        .arg(libusb_get_device_address(device), 3, 10, QChar(u'0'));
}

QString usbNodeGroup(const QString &node)
{
    struct stat status = {};
    struct group entry = {};
    struct group *found = nullptr;
    std::array<char, 4096> buffer{};
    // Nobody is to join the group "root".
    if (stat(QFile::encodeName(node).constData(), &status) == 0 && status.st_gid != 0 &&
        getgrgid_r(status.st_gid, &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return QString::fromLocal8Bit(found->gr_name);
    return {};
}

std::optional<UsbNodeHolder> usbNodeHolder(const QString &node)
{
    struct stat status = {};
    const QByteArray path = QFile::encodeName(node);
    if (stat(path.constData(), &status) != 0)
        return std::nullopt;
    const std::string self = std::to_string(getpid());
    std::error_code refused;
    for (const auto &process : fs::directory_iterator("/proc", refused)) {
        const std::string pid = process.path().filename();
        if (isNumber(pid) && pid != self && hasOpen(process.path(), path.toStdString(), status))
            return UsbNodeHolder{nameOf(process.path()), std::stoll(pid)};
    }
    return std::nullopt;
}
