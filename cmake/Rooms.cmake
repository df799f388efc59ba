# wt_add_room(<name> [SOURCES ...] [FOLDERS ...] [ROOMS ...] [LIBRARIES ...] [PRIVATE_LIBRARIES ...])
#
# A room of the house is one static library, wt_<name>. Its headers are found by bare name ("WTManager.h"), and only the
# rooms it names in ROOMS are on its include path: a wrong arrow does not compile. FOLDERS are sub-folders whose headers
# belong to the room as well. LIBRARIES show in the room's headers; PRIVATE_LIBRARIES stay behind them.
function(wt_add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;FOLDERS;ROOMS;LIBRARIES;PRIVATE_LIBRARIES" ${ARGN})
  set(target wt_${name})
  add_library(${target} STATIC ${ROOM_SOURCES})
  target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  foreach(folder IN LISTS ROOM_FOLDERS)
    target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
  endforeach()
  list(TRANSFORM ROOM_ROOMS PREPEND wt_)
  target_link_libraries(${target} PUBLIC ${ROOM_ROOMS} ${ROOM_LIBRARIES} PRIVATE ${ROOM_PRIVATE_LIBRARIES})
endfunction()

# wt_add_test(<name> SOURCES ... LIBRARIES ... [USBFS] [ENVIRONMENT ...] [TIMEOUT seconds] [LABELS ...])
#
# One test program. It counts as passed only when it printed Qt Test's totals line without a failure and no sanitizer
# spoke: an exit status alone proves nothing, since the crash capture ends a process with status 0.
# USBFS puts umockdev's preload library in front of libc, which the emulated usbfs needs.
function(wt_add_test name)
  cmake_parse_arguments(TEST "USBFS" "TIMEOUT" "SOURCES;LIBRARIES;ENVIRONMENT;LABELS" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LIBRARIES} wt_test_rows)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  if(TEST_USBFS)
    wt_emulate_usbfs(${name})
  endif()
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 120)
  endif()
  add_test(NAME ${name} COMMAND ${name})
  wt_judge_by_totals(${name} TIMEOUT ${TEST_TIMEOUT} ENVIRONMENT ${TEST_ENVIRONMENT} LABELS ${TEST_LABELS})
endfunction()

# The rule above for a test of any other making (a script that prints the same totals line).
function(wt_judge_by_totals name)
  cmake_parse_arguments(TEST "" "TIMEOUT" "ENVIRONMENT;LABELS" ${ARGN})
  # Those that may take longest begin first, so that none is left running alone.
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${TEST_TIMEOUT}
    COST ${TEST_TIMEOUT}
    LABELS "${TEST_LABELS}"
    PASS_REGULAR_EXPRESSION "Totals: [1-9][0-9]* passed, 0 failed"
    FAIL_REGULAR_EXPRESSION
      "Sanitizer: |runtime error: |LeakSanitizer|[1-9][0-9]* failed|QFATAL|Totals: 0 passed"
    ENVIRONMENT
      "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;${WT_SANITIZER_ENVIRONMENT};${TEST_ENVIRONMENT}")
endfunction()

function(wt_emulate_usbfs target)
  target_link_options(${target} BEFORE PRIVATE
    "LINKER:--push-state,--no-as-needed" -l:libumockdev-preload.so.0 "LINKER:--pop-state")
endfunction()
