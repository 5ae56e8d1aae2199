# What every target of this tree compiles with. Nothing of it reaches a user of the libraries.
add_library(vexel_options INTERFACE)
target_compile_features(vexel_options INTERFACE cxx_std_20)
target_compile_options(vexel_options INTERFACE
  -Wall -Wextra -Wshadow -Wconversion -Woverloaded-virtual -Wnon-virtual-dtor $<$<BOOL:${VEXEL_WERROR}>:-Werror>)

# vexel_library(NAME folder...): a shared library from the sources of the folders and of their detail/ folders.
# The target is vexel_NAME (plain vexel for NAME = vexel), its alias, in this tree and installed, vexel::NAME.
# Headers keep their folder when installed; those in detail/ stay at home.
function(vexel_library name)
  if(name STREQUAL "vexel")
    set(target vexel)
    set(component core)
  else()
    set(target vexel_${name})
    set(component ${name})
  endif()

  set(sources ${CMAKE_CURRENT_SOURCE_DIR}/export.h)
  foreach(folder IN LISTS ARGN)
    file(GLOB headers CONFIGURE_DEPENDS ${folder}/*.h)
    file(GLOB others CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/detail/*.cpp ${folder}/detail/*.h)
    list(APPEND sources ${headers} ${others})
    if(VEXEL_INSTALL AND headers)
      install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vexel/${folder} COMPONENT ${component})
    endif()
  endforeach()

  add_library(${target} SHARED ${sources})
  add_library(vexel::${name} ALIAS ${target})
  string(TOUPPER ${target} upper)
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name}
    OUTPUT_NAME ${target}
    LINKER_LANGUAGE CXX
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    DEFINE_SYMBOL ${upper}_BUILDING
    INSTALL_RPATH "$ORIGIN"
    LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/vexel.map)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vexel_options>)
  # Every exported symbol carries the version of the binary interface, and none may be left undefined; only sanitized
  # libraries find the sanitizer's own symbols in the program.
  target_link_options(${target} PRIVATE LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/vexel.map)
  if(NOT VEXEL_SANITIZE)
    target_link_options(${target} PRIVATE LINKER:-z,defs)
  endif()

  if(VEXEL_INSTALL)
    install(TARGETS ${target} EXPORT vexel-${component}-targets
      LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component})
  endif()
endfunction()
