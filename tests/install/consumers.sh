#!/bin/bash
# Installs into a folder of its own, builds the consumers there by CMake and by pkg-config, and runs them after the
# folder was moved: an installed library must not depend on where it was installed.
# Usage: consumers.sh BUILD-FOLDER WORK-FOLDER C-COMPILER C++-COMPILER SANITIZERS
set -euo pipefail
build=$1 work=$2 sanitize=${5:+-fsanitize=$5}
export CC=$3 CXX=$4
consumer=$(dirname "$0")/consumer

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$work/first" >"$work/install.log"
mv "$work/first" "$work/prefix"

cmake -G Ninja -S "$consumer" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$work/prefix" \
  -DCMAKE_C_FLAGS="$sanitize" -DCMAKE_CXX_FLAGS="$sanitize" -DCMAKE_EXE_LINKER_FLAGS="$sanitize"
cmake --build "$work/cmake"
"$work/cmake/with_c"
"$work/cmake/with_cpp"

package=$(dirname "$(find "$work/prefix" -name rnxip.pc)")
flags=(PKG_CONFIG_PATH="$package" pkg-config)
read -ra compile < <(env "${flags[@]}" --cflags rnxip)
read -ra link < <(env "${flags[@]}" --libs rnxip)
directory=$(env "${flags[@]}" --variable=libdir rnxip)
[[ $(env "${flags[@]}" --modversion rnxip) == 2021.11.0 ]]
strict=(-Wall -Wextra -Wpedantic -Werror)
"$CC" -std=c11 "${strict[@]}" $sanitize "${compile[@]}" "$consumer/consumer.c" -o "$work/with_c" "${link[@]}"
"$CXX" -std=c++20 "${strict[@]}" $sanitize "${compile[@]}" "$consumer/consumer.cpp" -o "$work/with_cpp" "${link[@]}"
LD_LIBRARY_PATH=$directory "$work/with_c"
LD_LIBRARY_PATH=$directory "$work/with_cpp"
