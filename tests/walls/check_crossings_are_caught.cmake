cmake_minimum_required(VERSION 3.25)

# Plants one crossing at a time in a scratch tree and expects the walls' check to refuse each, and to pass a tree
# without any:   cmake -DSCRATCH=<folder> -DCHECK=<check_walls.cmake> -P check_crossings_are_caught.cmake

set(crossings
    "presets/A.cpp|#include \"codec/B.h\""
    "presets/A.cpp|#include \"IVXFormatPreset.h\""
    "codec/A.cpp|#include \"IVXFormatNode.h\""
    "codec/A.cpp|#include \"runtime/foundation/VXJson.h\""
    "codec/A.cpp|#include <simdjson.h>"
    "format/A.cpp|#include <libavformat/avformat.h>"
    "format/A.cpp|  #  include <rapidjson/reader.h>"
    "tree/A.cpp|#include <QIcon>"
    "tree/A.cpp|#include \"artwork/B.h\""
    "include/IVXCodecPreset.h|#include \"IVXFormatPreset.h\""
    "platform/foundation/A.h|#include \"IVXCodecPreset.h\"")
set(permitted
    "codec/A.cpp|#include \"presets/B.h\""
    "tree/A.cpp|#include \"IVXFormatPreset.h\""
    "artwork/A.cpp|#include <QIcon>"
    "presets/A.cpp|#include <vector>")

function(plant case)
  file(REMOVE_RECURSE ${SCRATCH})
  foreach(header presets/B.h codec/B.h artwork/B.h runtime/foundation/VXJson.h include/IVXFormatPreset.h
                 include/IVXFormatNode.h include/IVXCodecPreset.h)
    file(WRITE ${SCRATCH}/${header} "#pragma once\n")
  endforeach()
  string(REGEX MATCH "^([^|]*)\\|(.*)$" ignored "${case}")
  file(WRITE ${SCRATCH}/${CMAKE_MATCH_1} "${CMAKE_MATCH_2}\n")
  execute_process(COMMAND ${CMAKE_COMMAND} -DROOT=${SCRATCH} -P ${CHECK} RESULT_VARIABLE status OUTPUT_QUIET
                  ERROR_VARIABLE complaint)
  set(status ${status} PARENT_SCOPE)
  set(complaint "${complaint}" PARENT_SCOPE)
endfunction()

foreach(case IN LISTS crossings)
  plant("${case}")
  if(status EQUAL 0 OR NOT complaint MATCHES "must not see")
    message(SEND_ERROR "not caught: ${case}")
  endif()
endforeach()
foreach(case IN LISTS permitted)
  plant("${case}")
  if(NOT status EQUAL 0)
    message(SEND_ERROR "refused: ${case}")
  endif()
endforeach()
file(REMOVE_RECURSE ${SCRATCH})
