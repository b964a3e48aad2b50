cmake_minimum_required(VERSION 3.25)

# The example does what README says of it:   cmake -DEXAMPLE=<program> -DSCRATCH=<folder> -P run_example.cmake

file(MAKE_DIRECTORY ${SCRATCH})
execute_process(COMMAND ffmpeg -v error -y -f lavfi -i testsrc2=size=1920x1080:rate=30 -t 1 -c:v libx264 -pix_fmt yuv420p
                        ${SCRATCH}/clip.mov COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${EXAMPLE} ${SCRATCH}/clip.mov OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
if(NOT printed MATCHES "^1920 x 1080 at [1-9][0-9]+ b/s\n$")
  message(FATAL_ERROR "printed: ${printed}")
endif()
execute_process(COMMAND ${EXAMPLE} ${SCRATCH}/missing.mov RESULT_VARIABLE status ERROR_VARIABLE complaint)
if(NOT status EQUAL 1 OR NOT complaint MATCHES "missing.mov: ")
  message(FATAL_ERROR "a missing file ends with ${status}: ${complaint}")
endif()
