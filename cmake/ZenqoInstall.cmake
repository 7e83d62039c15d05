# cmake --install: the library, its headers, the CMake package and the pkg-config file.

include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Zenqo)
set(generated ${PROJECT_BINARY_DIR}/package)

# It links only what the system has: no path of its own.
set_target_properties(zenqo_widgets PROPERTIES INSTALL_RPATH "")
install(TARGETS zenqo_widgets EXPORT ZenqoTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT ZenqoTargets NAMESPACE Zenqo:: DESTINATION ${package_folder})

# The headers keep their folders: includes begin at the same root here and there.
foreach(header ${zenqo_public_headers})
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zenqo/${folder})
endforeach()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZenqoConfig.cmake.in
  ${generated}/ZenqoConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${generated}/ZenqoConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${generated}/ZenqoConfig.cmake ${generated}/ZenqoConfigVersion.cmake
              ${PROJECT_SOURCE_DIR}/cmake/ZenqoWx.cmake
        DESTINATION ${package_folder})

# The toolkit has no pkg-config file of its own: its flags are asked for here and written down.
set(wx_components html,aui,core,base)
foreach(what cxxflags libs)
  execute_process(COMMAND ${wxWidgets_CONFIG_EXECUTABLE} --${what} ${wx_components}
                  OUTPUT_VARIABLE wx_${what} OUTPUT_STRIP_TRAILING_WHITESPACE
                  COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(RELATIVE_PATH root_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" root_from_pc ${root_from_pc})
configure_file(${PROJECT_SOURCE_DIR}/cmake/zenqo.pc.in ${generated}/zenqo.pc @ONLY)
install(FILES ${generated}/zenqo.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
