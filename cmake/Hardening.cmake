# What the linker, the compiler and the processor can do against a memory fault that is exploited. Only in optimised
# builds without sanitizers: fortified functions need the optimiser, and the sanitizers check more.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT WT_SANITIZE)
  add_compile_options(-D_FORTIFY_SOURCE=2 -D_GLIBCXX_ASSERTIONS -fstack-protector-strong -fstack-clash-protection
                      -fcf-protection=full)
  add_link_options(LINKER:-z,relro,-z,now,-z,noexecstack)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
endif()
