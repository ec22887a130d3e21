# Language level, warnings, sanitizers, ccache and a fast linker: the same for every target.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE OFF)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wall> $<$<COMPILE_LANGUAGE:CXX>:-Wextra>
                    $<$<COMPILE_LANGUAGE:CXX>:-Wshadow> $<$<COMPILE_LANGUAGE:CXX>:-Wno-unused-parameter>)

set(SKYVANE_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")
option(SKYVANE_FUZZ "Build the fuzz targets (clang)" OFF)
if(SKYVANE_SANITIZE)
  add_compile_options(-fsanitize=${SKYVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all -O1)
  add_link_options(-fsanitize=${SKYVANE_SANITIZE})
endif()
if(SKYVANE_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # Sloppiness lets precompiled headers hit the cache; base_dir shares it between work trees.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE_PROGRAM})
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:SHELL:-Xclang -fno-pch-timestamp>")
  else()
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
  endif()
endif()

find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM AND NOT SKYVANE_SANITIZE)
  add_link_options(-fuse-ld=mold)
endif()
