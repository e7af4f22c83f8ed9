# Compiler settings that hold for every target.

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor)

# Amounts must come out alike on every processor: no fused multiply-add behind our back. Rounding through
# llrint is one instruction once errno need not be set.
add_compile_options(-ffp-contract=off -fno-math-errno)

if(CMAKE_BUILD_TYPE STREQUAL "Release")
  include(CheckIPOSupported)
  check_ipo_supported(RESULT ipo OUTPUT ipo_neden LANGUAGES CXX)
  set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ${ipo})
endif()

if(BELVANI_TEMIZLEYICI)
  add_compile_options(-fsanitize=${BELVANI_TEMIZLEYICI} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${BELVANI_TEMIZLEYICI})
endif()

find_program(CCACHE ccache)
if(CCACHE)
  # Precompiled headers are cached only when told that their macros and times do not matter.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
  endif()
endif()
