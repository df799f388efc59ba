#include "typeName.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>

QString typeName(const std::type_info &type)
{
    const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr),
                                                           &std::free);
    return QString::fromUtf8(name ? name.get() : type.name());
}
