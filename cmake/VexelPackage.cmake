# Package files: find_package(vexel COMPONENTS ...), vexel.pc and vexel-<component>.pc.
# They know no absolute path, so an installed tree can be moved.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vexel)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(prefix /prefix)
cmake_path(RELATIVE_PATH prefix BASE_DIRECTORY /prefix/${pkgconfig_dir} OUTPUT_VARIABLE VEXEL_PC_PREFIX)

# vexel_component(NAME LIBRARY requires description): the files of one installed component.
function(vexel_component component library requires description)
  install(EXPORT vexel-${component}-targets NAMESPACE vexel:: DESTINATION ${package_dir} COMPONENT ${component})
  set(VEXEL_PC_LIBRARY ${library})
  set(VEXEL_PC_REQUIRES ${requires})
  set(VEXEL_PC_DESCRIPTION ${description})
  string(REPLACE vexel_ vexel- name ${library})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/vexel.pc.in ${PROJECT_BINARY_DIR}/package/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/package/${name}.pc DESTINATION ${pkgconfig_dir} COMPONENT ${component})
endfunction()

vexel_component(core vexel "" "Retained-mode widget framework")
vexel_component(memory vexel_memory "vexel" "In-memory backend of vexel")
vexel_component(testing vexel_testing "vexel-memory" "Test kit of vexel")
if(VEXEL_QT)
  vexel_component(qt vexel_qt "vexel, Qt6Widgets >= 6.4" "Qt 6 backend of vexel")
endif()

install(FILES ${PROJECT_SOURCE_DIR}/vexel/export.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vexel COMPONENT core)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/vexel-config.cmake.in
  ${PROJECT_BINARY_DIR}/package/vexel-config.cmake INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/vexel-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/package/vexel-config.cmake ${PROJECT_BINARY_DIR}/package/vexel-config-version.cmake
  DESTINATION ${package_dir} COMPONENT core)
