#pragma once

#include <QString>
#include <typeinfo>

/// The name of a type as the source spells it.
QString typeName(const std::type_info &type);
