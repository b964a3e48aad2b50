cmake_minimum_required(VERSION 3.25)

# The example in a document is, to the letter, the program that is built:
#   cmake -DDOCUMENT=<README.md> -DPROGRAM=<match.cpp> -P check_example.cmake

file(READ ${DOCUMENT} document)
file(READ ${PROGRAM} program)
string(FIND "${document}" "```cpp\n${program}```\n" place)
if(place EQUAL -1)
  message(FATAL_ERROR "${DOCUMENT} does not hold ${PROGRAM} as it is")
endif()
