cmake_minimum_required(VERSION 3.25)

# The page of codecs is up to date:   cmake -DTOOL=<vxpresets> -DPAGE=<codecs.md> -P check_codecs_page.cmake

execute_process(COMMAND ${TOOL} codecs --markdown OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
file(READ ${PAGE} page)
if(NOT printed STREQUAL page)
  message(FATAL_ERROR "${PAGE} is out of date; scripts/update-docs writes it anew")
endif()
