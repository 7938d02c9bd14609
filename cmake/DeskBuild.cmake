# How every target of the desk is built: the language, the warnings, the sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

find_program(DESK_CCACHE ccache)
if(DESK_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${DESK_CCACHE}")
endif()

add_compile_options(-Wall -Wextra -Wconversion)
if(DESK_SANITIZE)
  add_compile_options(-fsanitize=${DESK_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${DESK_SANITIZE})
endif()

# desk_library(NAME SOURCES... [LINK libraries...]): one folder of src/ as one static library.
function(desk_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(desk_${name} STATIC ${ARG_SOURCES})
  target_include_directories(desk_${name} PUBLIC "${CMAKE_SOURCE_DIR}/src"
                             "${CMAKE_BINARY_DIR}/generated")
  target_link_libraries(desk_${name} PUBLIC ${ARG_LINK})
endfunction()
