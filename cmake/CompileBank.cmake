# Runs as a script with every build: compiles the question bank into the program folder when its
# sources or the compiler are newer than the last compilation, or a file is missing.
#
# No rule of the build makes the answers file its output. It holds what the user has answered, and
# build tools delete outputs, when they clean and when they are interrupted.
#
# TOOL, SOURCES (folder), QUESTIONS, ANSWERS (files), STAMP (file, tells when it was done last)

file(GLOB inputs ${SOURCES}/*.yaml)
set(current TRUE)
# The folder itself is newer after a source was added or removed.
foreach(input ${TOOL} ${SOURCES} ${inputs})
  if(NOT ${STAMP} IS_NEWER_THAN ${input})
    set(current FALSE)
  endif()
endforeach()
if(current AND EXISTS ${STAMP} AND EXISTS ${QUESTIONS} AND EXISTS ${ANSWERS})
  return()
endif()

# Stamped before the sources are read: one that is changed meanwhile is newer.
file(TOUCH ${STAMP}.new)
message(STATUS "Compiling the question bank")
execute_process(
  COMMAND ${TOOL} compile ${SOURCES} --questions ${QUESTIONS} --answers ${ANSWERS}
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The question bank was not compiled.")
endif()
file(RENAME ${STAMP}.new ${STAMP})
