# vexel_library(NAME folder...): a shared library from all sources of the folders, with the project's warnings,
# visibility and install rules. Its target is vexel_NAME (vexel for NAME = vexel), its alias vexel::NAME.
add_library(vexel_options INTERFACE)
target_compile_features(vexel_options INTERFACE cxx_std_20)
target_compile_options(vexel_options INTERFACE
  -Wall -Wextra -Wshadow -Wconversion -Woverloaded-virtual -Wnon-virtual-dtor $<$<BOOL:${VEXEL_WERROR}>:-Werror>)

function(vexel_library name)
  set(sources)
  foreach(folder IN LISTS ARGN)
    file(GLOB found CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h ${folder}/detail/*.cpp ${folder}/detail/*.h)
    list(APPEND sources ${found})
  endforeach()
  if(name STREQUAL "vexel")
    set(target vexel)
  else()
    set(target vexel_${name})
  endif()
  add_library(${target} SHARED ${sources})
  add_library(vexel::${name} ALIAS ${target})
  string(TOUPPER ${target} upper)
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name}
    OUTPUT_NAME ${target}
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    DEFINE_SYMBOL ${upper}_BUILDING)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vexel_options>)
endfunction()
