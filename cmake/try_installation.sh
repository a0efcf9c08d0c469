#!/usr/bin/env bash
# Uses an installation as another project would, or the sources as a part of one:
#   try_installation.sh PHASE SOURCE_DIR BUILD_DIR GENERATOR MAKE_PROGRAM COMPILER
# The last three are those of the build itself: no other generator or compiler need be there.
set -euo pipefail
phase=$1 source=$2 build=$3 generator=$4 make_program=$5 compiler=$6
stage=$build/installed

find_pkgconfig() {
    PKG_CONFIG_PATH=$(dirname "$(find "$stage" -name orvandata.pc)")
    export PKG_CONFIG_PATH
}

# The examples leave files in the documents folder, so each gets a home of its own.
run_example() (
    home=$(mktemp -d)
    trap 'rm -rf "$home"' EXIT
    export HOME=$home XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home XDG_RUNTIME_DIR=$home LC_ALL=C.UTF-8
    unset QT_QPA_PLATFORM DISPLAY WAYLAND_DISPLAY
    "$1" "$home"
    # What fails is told in one line, which the translation has put into English.
    touch "$home/file"
    ! complaint=$("$1" "$home/file" 2>&1 >/dev/null) || { echo "$1 wrote into a file as into a folder"; return 1; }
    grep -qx '.*: [ -~]*' <<<"$complaint" && [ "$(wc -l <<<"$complaint")" -eq 1 ] ||
        { echo "$1 said: $complaint"; return 1; }
)

# by_cmake EXAMPLE PROGRAM: builds an example as a project of its own and runs it.
by_cmake() {
    cmake -S "$source/examples/$1" -B "$build/example-$1" -G "$generator" -DCMAKE_MAKE_PROGRAM="$make_program" \
        -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$stage" -DCMAKE_BUILD_TYPE=Debug >/dev/null
    cmake --build "$build/example-$1"
    run_example "$build/example-$1/$2"
}

# by_pkgconfig EXAMPLE PACKAGE: the same with the compiler alone.
by_pkgconfig() {
    local flags
    flags=$(pkg-config --cflags --libs "$2")
    # shellcheck disable=SC2086  # flags are words
    "$compiler" -std=c++17 "$source/examples/$1/main.cpp" -o "$build/example-$1-pkgconfig" $flags \
        -Wl,-rpath,"$(pkg-config --variable=libdir orvandata)"
    run_example "$build/example-$1-pkgconfig"
}

# A project around the library has none of its tests and packages, nothing in its own folders but what it made, and
# compiles as it did.
refuse_traces() {
    local folder=$1
    ctest --test-dir "$folder" -N | grep -qx 'Total Tests: 0' || { echo "the project has got tests"; return 1; }
    for name in bin lib share include CPackConfig.cmake; do
        [ ! -e "$folder/$name" ] || { echo "the project has got $name"; return 1; }
    done
    ! grep '"command".*/examples/host/main.cpp' "$folder/compile_commands.json" | grep -e '-fvisibility' -e ' -W'
}

case $phase in
    install)
        rm -rf "$stage" "$build"/example-*
        cmake --install "$build" --prefix "$stage" >/dev/null
        ;;
    headers)
        find_pkgconfig
        flags=$(pkg-config --cflags orvandata)
        # shellcheck disable=SC2086  # flags are words
        (cd "$stage/include" && find . -name '*.h' -printf '%P\n') | sort |
            xargs -P "$(nproc)" -I{} sh -c 'header=$1 && shift && echo "#include <$header>" |
                "$0" -x c++ -std=c++17 -fsyntax-only -Wall -Wextra -Werror "$@" - || exit 255' "$compiler" {} $flags
        ;;
    symbols)
        "$source/cmake/exported_symbols.sh" "$(find "$stage" -name libOrvanData.so)" "$source/src/orvandata.symbols"
        ;;
    host)
        by_cmake host orvandata-host
        by_cmake tools orvandata-drawing
        ;;
    pkgconfig)
        find_pkgconfig
        by_pkgconfig host orvandata
        by_pkgconfig tools orvantools
        ;;
    subproject)
        # Beside the build, where ccache knows the library's objects by the names of that build; without ccache they are
        # compiled again, quickly.
        outer=$build-subproject
        options=(-DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0)
        command -v ccache >/dev/null && options=(-DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
        rm -rf "$outer"
        cmake -S "$source/examples/subproject" -B "$outer" -G "$generator" -DCMAKE_MAKE_PROGRAM="$make_program" \
            -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON "${options[@]}" >/dev/null
        cmake --build "$outer"
        run_example "$outer/orvandata-host"
        run_example "$outer/orvandata-drawing"
        refuse_traces "$outer"
        ;;
    *)
        echo "unknown phase: $phase" >&2
        exit 2
        ;;
esac
