# Makes the target Zenqo::wxWidgets of what the toolkit's own find module reports.
# Used by the build and, installed, by the package that hosts find.
if(NOT TARGET Zenqo::wxWidgets)
  find_package(wxWidgets 3.2 QUIET REQUIRED COMPONENTS html aui core base)
  add_library(Zenqo::wxWidgets INTERFACE IMPORTED)
  set_target_properties(Zenqo::wxWidgets PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${wxWidgets_INCLUDE_DIRS}"
    INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${wxWidgets_INCLUDE_DIRS}"
    INTERFACE_COMPILE_DEFINITIONS "${wxWidgets_DEFINITIONS}"
    INTERFACE_COMPILE_OPTIONS "${wxWidgets_CXX_FLAGS}"
    INTERFACE_LINK_LIBRARIES "${wxWidgets_LIBRARIES}")
endif()
