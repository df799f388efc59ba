#pragma once

#include "ModelIdentity.h"
#include "UsbShape.h"

#include <QByteArray>
#include <optional>

/// The descriptors that a device of this identity and shape shows.
namespace UsbDescriptors
{
enum StringIndex : quint8 { Languages, Manufacturer, Product, SerialNumber };

/// The bulk endpoints of an interface by its number.
quint8 outEndpoint(int interface);
quint8 inEndpoint(int interface);

QByteArray device(const ModelIdentity &identity);
QByteArray configuration(const UsbShape &shape);
/// A string descriptor; absent when there is none of this index.
std::optional<QByteArray> string(const ModelIdentity &identity, quint8 index);
} // namespace UsbDescriptors
