# libcups of Debian 12 ships no pkg-config file: ask cups-config's library by name. Defines the target Cups::Cups.
find_path(Cups_INCLUDE_DIR cups/cups.h)
find_library(Cups_LIBRARY cups)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Cups REQUIRED_VARS Cups_LIBRARY Cups_INCLUDE_DIR)
if(Cups_FOUND AND NOT TARGET Cups::Cups)
  add_library(Cups::Cups UNKNOWN IMPORTED)
  set_target_properties(Cups::Cups PROPERTIES
    IMPORTED_LOCATION ${Cups_LIBRARY} INTERFACE_INCLUDE_DIRECTORIES ${Cups_INCLUDE_DIR})
endif()
