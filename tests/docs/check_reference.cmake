cmake_minimum_required(VERSION 3.25)

# The reference is made of the headers of the runtime that hosts may call, and of no others:
#   cmake -DSOURCE=<folder> -DHEADERS=<list of files> -P check_reference.cmake

file(READ ${SOURCE}/docs/Doxyfile settings)
string(REGEX MATCHALL "runtime/[a-z]+/[A-Za-z0-9]+\\.h" listed "${settings}")
set(installed)
foreach(header IN LISTS HEADERS)
  get_filename_component(header ${header} ABSOLUTE BASE_DIR ${SOURCE})
  file(RELATIVE_PATH header ${SOURCE} ${header})
  list(APPEND installed ${header})
endforeach()
list(SORT listed)
list(SORT installed)
if(NOT installed)
  message(FATAL_ERROR "no headers for hosts")
endif()
if(NOT listed STREQUAL installed)
  message(FATAL_ERROR "docs/Doxyfile lists ${listed}\nhosts have ${installed}")
endif()
