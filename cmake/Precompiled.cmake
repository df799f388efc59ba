# wt_precompile_headers(): one precompiled header for every target of the tree.
#
# Only the preset that clang builds uses it: there it halves the time, g++'s own kind of it saves nothing. Without it a
# header that forgets an include does not compile, which the other presets see to.
function(wt_precompile_headers)
  add_library(wt_precompiled OBJECT ${CMAKE_SOURCE_DIR}/cmake/precompiled.cpp)
  target_link_libraries(wt_precompiled PRIVATE Qt6::Widgets Qt6::Svg)
  target_precompile_headers(wt_precompiled PRIVATE
    <QtWidgets> <QtSvg> <algorithm> <functional> <memory> <mutex> <optional> <string> <vector>)
  wt_reuse_precompiled(${CMAKE_SOURCE_DIR})
endfunction()

function(wt_reuse_precompiled folder)
  get_directory_property(targets DIRECTORY ${folder} BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    if(type MATCHES "^(STATIC_LIBRARY|EXECUTABLE)$")
      target_precompile_headers(${target} REUSE_FROM wt_precompiled)
    endif()
  endforeach()
  get_directory_property(subfolders DIRECTORY ${folder} SUBDIRECTORIES)
  foreach(subfolder IN LISTS subfolders)
    wt_reuse_precompiled(${subfolder})
  endforeach()
endfunction()
