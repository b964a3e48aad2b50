# What every target of ours is compiled with.
function(vx_target_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF CXX_VISIBILITY_PRESET hidden
                                             VISIBILITY_INLINES_HIDDEN ON POSITION_INDEPENDENT_CODE ON)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /utf-8)
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
  endif()
endfunction()

# One of the three libraries: its name, the define that marks its own build, the folder of its public headers, its sources.
function(vx_add_library target build_define header_folder)
  add_library(${target} ${ARGN})
  vx_target_defaults(${target})
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${header_folder}/*.h)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/${header_folder} FILES ${headers})
  target_compile_definitions(${target} PRIVATE ${build_define} PUBLIC $<$<NOT:$<BOOL:${BUILD_SHARED_LIBS}>>:VX_STATIC>)
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
                                             VERIFY_INTERFACE_HEADER_SETS ON INSTALL_RPATH $ORIGIN)
  if(BUILD_SHARED_LIBS AND UNIX AND NOT APPLE)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/exports.map.in ${target}.map @ONLY)
    target_link_options(${target} PRIVATE LINKER:--version-script=${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
  endif()
  add_library(Vexlor::${target} ALIAS ${target})
endfunction()

# Headers of the runtime that hosts may call beyond the platform's, included by their path from the root.
function(vx_add_host_headers target)
  target_sources(${target} PUBLIC FILE_SET hosts TYPE HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${ARGN})
endfunction()

# One subsystem of the preset library. Its include path is what the walls between the folders allow and no more, so
# that it compiles against any implementation of the platform's headers.
function(vx_add_subsystem target)
  add_library(${target} OBJECT ${ARGN})
  vx_target_defaults(${target})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include
                                              ${PROJECT_SOURCE_DIR}/platform/foundation
                                              ${PROJECT_SOURCE_DIR}/platform/mediacodecs)
  target_compile_definitions(${target} PRIVATE VX_PRESETS_BUILD PUBLIC $<$<NOT:$<BOOL:${BUILD_SHARED_LIBS}>>:VX_STATIC>)
endfunction()
