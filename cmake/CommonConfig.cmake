# One interface target carries the language standard, the warnings and Qt's strictness to every
# target of the project, so that no file is built more leniently than another.
add_library(tessaly_common INTERFACE)
target_compile_features(tessaly_common INTERFACE cxx_std_20)
target_include_directories(tessaly_common INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(tessaly_common INTERFACE
  QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_STRICT_ITERATORS
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_URL_CAST_FROM_STRING)
target_compile_options(tessaly_common INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
  -Wcast-qual -Wconversion -Wsign-conversion -Wduplicated-cond -Wlogical-op -Wnull-dereference
  -Wimplicit-fallthrough)
if(TESSALY_WARNINGS_AS_ERRORS)
  target_compile_options(tessaly_common INTERFACE -Werror)
endif()
if(TESSALY_SANITIZE)
  target_compile_options(tessaly_common INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tessaly_common INTERFACE -fsanitize=address,undefined)
endif()
