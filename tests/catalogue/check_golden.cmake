cmake_minimum_required(VERSION 3.25)

# What the presets make of the sources is what is committed:
#   cmake -DPROGRAM=<catalogue_golden> -DGOLDEN=<tests/catalogue/golden> -DSCRATCH=<folder> -P check_golden.cmake

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
execute_process(COMMAND ${PROGRAM} ${SCRATCH} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND diff -ru0 ${GOLDEN} ${SCRATCH} OUTPUT_VARIABLE difference RESULT_VARIABLE differs)
if(differs)
  string(REGEX MATCHALL "\n[+-][^+-]" lines "${difference}")
  list(LENGTH lines count)
  string(SUBSTRING "${difference}" 0 4000 beginning)
  message("${beginning}")
  message(FATAL_ERROR "${count} lines differ; if that is meant, scripts/update-golden writes the table anew, for review")
endif()
