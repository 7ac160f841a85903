# Runs as a script with every build: makes the program folder's pages those of data/. A page that was
# changed is copied, one that is no longer there is removed.
#
# SOURCES, PROGRAM (folders)

cmake_minimum_required(VERSION 3.25)

set(folders pubs kovrins glossary)

file(GLOB pages RELATIVE ${SOURCES} ${SOURCES}/*.html ${SOURCES}/*.css)
file(GLOB copies RELATIVE ${PROGRAM} ${PROGRAM}/*.html ${PROGRAM}/*.css)
foreach(folder ${folders})
  file(GLOB_RECURSE more RELATIVE ${SOURCES} ${SOURCES}/${folder}/*)
  list(APPEND pages ${more})
  file(GLOB_RECURSE more RELATIVE ${PROGRAM} ${PROGRAM}/${folder}/*)
  list(APPEND copies ${more})
endforeach()

foreach(copy ${copies})
  if(NOT copy IN_LIST pages)
    file(REMOVE ${PROGRAM}/${copy})
  endif()
endforeach()
# A file of the same content and time is left alone.
foreach(page ${pages})
  cmake_path(GET page PARENT_PATH folder)
  file(COPY ${SOURCES}/${page} DESTINATION ${PROGRAM}/${folder})
endforeach()
