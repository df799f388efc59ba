# The headers of libcups, which Debian 12 ships without a pkg-config file: the target Cups::Headers. Nothing links the
# library: the program loads it beside its start.
find_path(Cups_INCLUDE_DIR cups/cups.h)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Cups REQUIRED_VARS Cups_INCLUDE_DIR)
if(Cups_FOUND AND NOT TARGET Cups::Headers)
  add_library(Cups::Headers INTERFACE IMPORTED)
  set_target_properties(Cups::Headers PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${Cups_INCLUDE_DIR})
endif()
