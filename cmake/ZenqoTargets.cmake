# What all targets of this tree have in common.

add_library(zenqo_strict INTERFACE)
target_compile_options(zenqo_strict INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  -Wconversion -Wno-sign-conversion -Wcast-align -Wunused
  # A precompiled header and the compiler cache need this to agree on what was read.
  -fpch-preprocess)
if(ZENQO_SANITIZE)
  # Whatever these find ends the process: a finding can't pass unseen. -Wmaybe-uninitialized
  # reports code that the instrumentation itself brings in.
  target_compile_options(zenqo_strict INTERFACE
    -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
    -fno-omit-frame-pointer -Wno-maybe-uninitialized)
  target_link_options(zenqo_strict INTERFACE -fsanitize=address,undefined,float-cast-overflow)
endif()

# Gives a target the warnings, the include root and a precompiled header of what most files include.
function(zenqo_common target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:zenqo_strict>)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden
                                             VISIBILITY_INLINES_HIDDEN ON)
  target_precompile_headers(${target} PRIVATE
    <map> <memory> <string> <vector> <Eigen/Core> <wx/wx.h> <wx/grid.h> <wx/treectrl.h> ${ARGN})
endfunction()
