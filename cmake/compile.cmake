# Language, warnings and sanitizers of everything that is built here.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_FLAGS_RELEASE "-O2")
set(CMAKE_C_FLAGS_RELEASE "-O2")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

add_library(rnx_warnings INTERFACE)
target_compile_options(rnx_warnings INTERFACE
  $<$<COMPILE_LANGUAGE:CXX,C>:-Wall -Wextra -Wpedantic -Wconversion -Werror>
  # Clang counts changes of sign among the conversions, GCC does not in C++.
  $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wno-sign-conversion>)

if(RNXIP_SANITIZE)
  # Sanitized kernels take five times as long to compile at -O2, and four times as long with GCC as with Clang.
  add_compile_options($<$<COMPILE_LANGUAGE:CXX,C>:-O1>)
  add_compile_options($<$<COMPILE_LANGUAGE:CXX,C>:-fsanitize=${RNXIP_SANITIZE}>
    $<$<COMPILE_LANGUAGE:CXX,C>:-fno-sanitize-recover=all>
    $<$<COMPILE_LANGUAGE:CXX,C>:-fno-omit-frame-pointer> $<$<COMPILE_LANGUAGE:CXX,C>:-g1>
    # Needs the C++ runtime, which C programs do not have.
    $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-fno-sanitize=function>)
  add_link_options(-fsanitize=${RNXIP_SANITIZE})
  add_compile_definitions(RNXIP_SANITIZED)
endif()
