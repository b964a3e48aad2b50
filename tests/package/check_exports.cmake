cmake_minimum_required(VERSION 3.25)

# A shared library exports the functions of its list, besides them what makes the interfaces' types known, and nothing else:
#   cmake -DLIBRARY=<libX.so> -DLIST=<X.txt> [-DWRITE=ON] -P check_exports.cmake
# WRITE makes the list anew.

execute_process(COMMAND nm --dynamic --defined-only --demangle --format=posix ${LIBRARY} OUTPUT_VARIABLE printed
                COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "[[\\]]" "" printed "${printed}") # lists of CMake do not bear square brackets
string(REPLACE "\n" ";" lines "${printed}")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "@@?[A-Za-z0-9_]+ .*$| [A-Za-z] [0-9a-f]+ ?[0-9a-f]*$" "" symbol "${line}")
  if(line MATCHES " T [0-9a-f]+")
    list(APPEND functions "${symbol}")
  elseif(NOT symbol STREQUAL "" AND NOT symbol MATCHES "^(typeinfo|typeinfo name|vtable) for Vexlor::IVX[A-Za-z]+$"
         AND NOT symbol MATCHES "^VX[A-Za-z0-9]+_[0-9]+$")
    message(SEND_ERROR "${LIBRARY} exports ${symbol}")
  endif()
endforeach()
list(SORT functions)
list(JOIN functions "\n" text)
if(WRITE)
  file(WRITE ${LIST} "${text}\n")
endif()
file(READ ${LIST} expected)
if(NOT expected STREQUAL "${text}\n")
  file(WRITE ${LIBRARY}.exports.txt "${text}\n")
  message(FATAL_ERROR "the exports are not those of ${LIST}; what they are stands in ${LIBRARY}.exports.txt")
endif()
