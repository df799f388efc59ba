#pragma once

#include <QByteArray>

/// Command frames as bytes, built here a second time so that emulator and product cannot agree on the same mistake.
namespace TestFrames
{
/// The envelope around an ACL frame.
QByteArray enveloped(const QByteArray &acl);
/// A frame with the short header and this payload.
QByteArray shortFrame(quint16 command, const QByteArray &payload = {});
QByteArray configuration(const QByteArray &networkName, const QByteArray &password);
/// The information page for models that take no payload: a length field of 2 and nothing behind it.
QByteArray informationPageWithoutPayload();
} // namespace TestFrames
