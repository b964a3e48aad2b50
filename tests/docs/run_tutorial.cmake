cmake_minimum_required(VERSION 3.25)

# The built-in tree, edited, and then shown with a media file and an icon:
#   cmake -DTOOL=<vxpresets> -DEDIT=<program> -DHOST=<program> -DARTWORK=<file> -DSCRATCH=<folder> -P run_tutorial.cmake

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
set(ENV{XDG_RUNTIME_DIR} ${SCRATCH})
execute_process(COMMAND ${TOOL} tree --json OUTPUT_FILE ${SCRATCH}/tree.json COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${EDIT} ${SCRATCH}/tree.json ${SCRATCH}/mine.json COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ffmpeg -v error -y -f lavfi -i testsrc2=size=1920x1080:rate=30 -t 1 -c:v libx264 -pix_fmt yuv420p
                        ${SCRATCH}/clip.mov COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${HOST} ${SCRATCH}/mine.json ${SCRATCH}/clip.mov ${ARTWORK} ${SCRATCH}/icon.png
                OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
if(NOT printed MATCHES "Video\n  MP4: 1920 x 1080" OR NOT printed MATCHES "Mine\n  My Phone: 1280 x 720, [1-9][0-9]* kb/s\n$")
  message(FATAL_ERROR "printed: ${printed}")
endif()
file(SIZE ${SCRATCH}/icon.png size)
if(size LESS 100)
  message(FATAL_ERROR "icon.png has ${size} bytes")
endif()
execute_process(COMMAND ${EDIT} ${SCRATCH}/clip.mov ${SCRATCH}/mine.json RESULT_VARIABLE status ERROR_VARIABLE complaint)
if(NOT status EQUAL 1 OR NOT complaint MATCHES "clip.mov:1:1: ")
  message(FATAL_ERROR "a document that is none ends with ${status}: ${complaint}")
endif()
