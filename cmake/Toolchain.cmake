# Flags every target is built with: all warnings are errors, no path of the build machine in a binary, and, where a
# preset asks for them, the sanitizers.
set(WT_SANITIZE "" CACHE STRING "Sanitizers to build with, as in -fsanitize=")

add_compile_options(-Wall -Wextra -Werror -Wpedantic -Wnon-virtual-dtor "$<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>"
                    "-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=")
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_MESSAGELOGCONTEXT
                        QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(WT_SANITIZE)
  add_compile_options(-fsanitize=${WT_SANITIZE} -fno-omit-frame-pointer -g1 -pthread)
  add_link_options(-fsanitize=${WT_SANITIZE})
  find_program(WT_SYMBOLIZER llvm-symbolizer-16)
  if(WT_SANITIZE MATCHES "thread" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-error=tsan)
  endif()
  if(WT_SANITIZE MATCHES "thread")
    add_library(wt_start_process OBJECT ${CMAKE_CURRENT_LIST_DIR}/startProcessUnderTsan.cpp)
    # A preloaded library brings it into programs that have no sanitizer.
    target_compile_options(wt_start_process PRIVATE -fno-sanitize=all)
    link_libraries(wt_start_process)
  endif()
  if(WT_SANITIZE MATCHES "undefined")
    add_compile_options(-fno-sanitize-recover=undefined)
  endif()
endif()

# What the sanitizers are told in a test.
set(WT_SANITIZER_ENVIRONMENT
  "ASAN_OPTIONS=detect_leaks=1:allow_user_segv_handler=0"
  "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0"
  "TSAN_OPTIONS=ignore_noninstrumented_modules=1:report_thread_leaks=0"
  "UBSAN_OPTIONS=print_stacktrace=1"
  "ASAN_SYMBOLIZER_PATH=${WT_SYMBOLIZER}")

find_program(WT_CCACHE ccache)
if(WT_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${WT_CCACHE})
endif()
