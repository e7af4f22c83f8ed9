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
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
