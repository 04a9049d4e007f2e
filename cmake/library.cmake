# The two shared objects.
find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter)
set(GENERATED ${PROJECT_BINARY_DIR}/generated)
file(GLOB API_FILES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/api/*.toml)

# ---- The lists made from the table of exports; a stale committed header stops the build ----

set(GENERATED_FILES
  ${GENERATED}/dispatch_includes.inc ${GENERATED}/dispatch_fields.inc ${GENERATED}/dispatch_values.inc ${GENERATED}/entries.inc
  ${GENERATED}/signatures.inc ${GENERATED}/exports.map ${GENERATED}/table.json)
add_custom_command(
  OUTPUT ${GENERATED}/apigen.stamp
  BYPRODUCTS ${GENERATED_FILES}
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/apigen.py --check --generate ${GENERATED}
  COMMAND ${CMAKE_COMMAND} -E touch ${GENERATED}/apigen.stamp
  DEPENDS ${API_FILES} ${PROJECT_SOURCE_DIR}/tools/apigen.py ${PROJECT_SOURCE_DIR}/abi/exports.txt
    ${PROJECT_SOURCE_DIR}/include/rnxip/types.h
  COMMENT "Expanding the table of exports"
  VERBATIM)
add_custom_target(apigen DEPENDS ${GENERATED}/apigen.stamp)

# ---- Common flags ----

add_library(rnx_library_flags INTERFACE)
target_include_directories(rnx_library_flags INTERFACE
  ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src ${GENERATED})
# Floating point means what it says: no contraction, no reassociation. No C++ runtime at run time.
target_compile_options(rnx_library_flags INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-march=x86-64-v2 -ffp-contract=off -fno-exceptions -fno-rtti -fno-threadsafe-statics
    -fvisibility=hidden -fcf-protection=full -ffunction-sections -Wno-psabi>)
# Compilers put scalars side by side into vectors through memory, where a load of 16 bytes waits for two stores of 8: 4 to
# 8 ns a call. What is worth a vector is one in the source.
target_compile_options(rnx_library_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fno-tree-slp-vectorize>)
# GCC's string instructions cost 20 ns for the 100 bytes of an argument block.
target_compile_options(rnx_library_flags INTERFACE
  $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-mmemset-strategy=unrolled_loop:256:noalign,libcall:-1:noalign
    -mmemcpy-strategy=unrolled_loop:256:noalign,libcall:-1:noalign>)
if(NOT RNXIP_SANITIZE)
  target_compile_definitions(rnx_library_flags INTERFACE NDEBUG)
endif()
target_link_libraries(rnx_library_flags INTERFACE rnx_warnings)

function(rnx_shared_object target)
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
    LINKER_LANGUAGE C)
  target_link_options(${target} PRIVATE
    -Wl,-z,now -Wl,-z,relro -Wl,-z,noexecstack -Wl,--gc-sections -Wl,--as-needed)
  if(NOT RNXIP_SANITIZE)  # whose runtime is part of the program
    target_link_options(${target} PRIVATE -Wl,-z,defs)
  endif()
endfunction()

# ---- rnxcore ----

add_library(rnxcore SHARED src/rnxcore/rnxcore.cpp)
add_library(rnxip::rnxcore ALIAS rnxcore)
rnx_shared_object(rnxcore)
target_link_libraries(rnxcore PRIVATE rnx_library_flags)
target_include_directories(rnxcore INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)

# ---- Row kernels: each source is compiled once per vector width ----

file(GLOB ROW_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*/*_rows.cpp)

function(rnx_rows target bytes)
  add_library(${target} OBJECT ${ROW_SOURCES})
  target_compile_definitions(${target} PRIVATE RNX_VECTOR_BYTES=${bytes})
  target_link_libraries(${target} PRIVATE rnx_library_flags)
  target_compile_options(${target} PRIVATE ${ARGN})
endfunction()
rnx_rows(rnxip_rows128 16)
rnx_rows(rnxip_rows256 32 -mavx2)

# An inline function that both widths leave as a weak copy would be merged by the linker, and the wide copy might win.
# Sanitized code, hardly optimised, has such copies; it runs where it is built.
add_custom_command(
  OUTPUT ${GENERATED}/no_weak_symbols.stamp
  COMMAND ${PROJECT_SOURCE_DIR}/cmake/no_weak_symbols.sh ${CMAKE_NM} $<TARGET_OBJECTS:rnxip_rows256>
  COMMAND ${CMAKE_COMMAND} -E touch ${GENERATED}/no_weak_symbols.stamp
  DEPENDS rnxip_rows256 $<TARGET_OBJECTS:rnxip_rows256> ${PROJECT_SOURCE_DIR}/cmake/no_weak_symbols.sh
  COMMAND_EXPAND_LISTS VERBATIM
  COMMENT "Looking for weak symbols in the wide kernels")
if(NOT RNXIP_SANITIZE)
  set(WEAK_CHECK ${GENERATED}/no_weak_symbols.stamp)
endif()
add_custom_target(no_weak_symbols DEPENDS ${WEAK_CHECK})

# ---- rnxip ----

add_library(rnxip SHARED
  src/core/dispatch.cpp src/core/entries.S src/fft/lengths.cpp src/fft/plan.cpp src/fft/shape.cpp
  $<TARGET_OBJECTS:rnxip_rows128> $<TARGET_OBJECTS:rnxip_rows256>)
add_library(rnxip::rnxip ALIAS rnxip)
rnx_shared_object(rnxip)
add_dependencies(rnxip apigen no_weak_symbols)
set_source_files_properties(src/core/entries.S PROPERTIES OBJECT_DEPENDS ${GENERATED}/apigen.stamp)
set_source_files_properties(src/core/dispatch.cpp PROPERTIES OBJECT_DEPENDS ${GENERATED}/apigen.stamp)
target_link_libraries(rnxip PRIVATE rnx_library_flags rnxcore m)
target_link_options(rnxip PRIVATE -Wl,--version-script=${GENERATED}/exports.map)
set_target_properties(rnxip PROPERTIES LINK_DEPENDS ${GENERATED}/apigen.stamp)
target_include_directories(rnxip INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
