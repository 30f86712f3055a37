#!/usr/bin/env bash
# Builds all fuzz targets the way that services for continuous fuzzing call it, and for ./check fuzz. From the
# environment:
#
#   OUT                 folder for the results, which need nothing else to run; required
#   WORK                folder for the build tree; default OUT/work
#   CC, CXX             compilers; default clang and clang++
#   CFLAGS, CXXFLAGS    instrumentation; default that of the preset fuzz
#   LIB_FUZZING_ENGINE  what contains main(): options, objects or libraries for the linker; default -fsanitize=fuzzer
#
# For each target: OUT/fuzz_NAME, its seeds with the findings of earlier runs in OUT/fuzz_NAME_seed_corpus.zip, its words
# in OUT/fuzz_NAME.dict, and its options in OUT/fuzz_NAME.options. Libraries are in OUT/lib.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
mkdir -p "${OUT:?}"
out=$(cd "$OUT" && pwd)
work=${WORK:-$out/work}
mkdir -p "$work"
work=$(cd "$work" && pwd)

export CC=${CC:-clang} CXX=${CXX:-clang++}
arguments=(-DCMAKE_C_COMPILER="$CC" -DCMAKE_CXX_COMPILER="$CXX"
           -DTARN_FUZZ_ENGINE="${LIB_FUZZING_ENGINE:--fsanitize=fuzzer}")
# Whoever chooses flags chooses the instrumentation, too.
if [ -n "${CFLAGS:-}${CXXFLAGS:-}" ]; then
    arguments+=(-DTARN_SANITIZE= -DCMAKE_C_FLAGS_DEBUG= -DCMAKE_CXX_FLAGS_DEBUG=)
fi
# The packaged test framework is built for another standard library.
if [[ ${CXXFLAGS:-} == *-stdlib=libc++* ]]; then
    cmake -S /usr/src/googletest -B "$work/googletest" -G Ninja -DBUILD_GMOCK=OFF \
        -DCMAKE_INSTALL_PREFIX="$work/installed" >/dev/null
    cmake --build "$work/googletest" --parallel "${JOBS:-$(nproc)}" --target install
    arguments+=(-DGTest_ROOT="$work/installed")
fi
cd "$root"
cmake --preset fuzz -B "$work" "${arguments[@]}" >/dev/null
cmake --build "$work" --parallel "${JOBS:-$(nproc)}" --target fuzzers

# Programs and what they load, except the libraries of the C and C++ runtime.
mkdir -p "$out/lib"
for program in "$work"/tests/fuzz/fuzz_*; do
    name=${program##*/}
    [ -x "$program" ] && [ -f "$program" ] && [ "$name" != fuzz_seeds ] && [[ $name != *_replay ]] || continue
    target=${name#fuzz_}
    cp "$program" "$out/$name"
    ldd "$program" | awk '$2 == "=>" && $3 ~ /^\// { print $3 }' |
        grep -vE '/(libc|libm|libdl|librt|libpthread|libgcc_s|libstdc\+\+)\.so' | xargs -r cp -L -t "$out/lib"
    seeds=$work/seeds/$target
    rm -rf "$seeds"
    mkdir -p "$seeds"
    for folder in "$work/tests/fuzz/corpus/$target" "$here/findings/$target"; do
        [ ! -d "$folder" ] || cp -r "$folder/." "$seeds"
    done
    (cd "$seeds" && cmake -E tar cf "$out/${name}_seed_corpus.zip" --format=zip .)
    cp "$work/tests/fuzz/corpus/$target.dict" "$out/$name.dict"
    cp "$work/tests/fuzz/corpus/$target.options" "$out/$name.options"
done
