#pragma once

#include "NetworkEntry.h"

/// What may keep a printer from joining a network. A hint never keeps anybody from going on.
enum class NetworkHint { None, UserName, NoPassword, OnlyWpa3, Only5GHz, BlankInName, BlankInPassword };

/// The first hint that applies, in the order above.
/// @param listed the network as the computer sees it; null when it does not see one of that name.
NetworkHint networkHint(const NetworkEntry &entry, const WTWiFi *listed);

/// One sentence in the interface language; empty for `None`.
QString hintText(NetworkHint hint);
