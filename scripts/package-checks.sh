# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Checks of what a host or a packager gets: the installed package, the symbols, the documentation. Each
# function fails when something is wrong, and prints what.

# Starts a program that opens a window and stays until it is ended, and ends it. Fails when it ends by itself.
stays_open() {
    local status=0
    QT_QPA_PLATFORM=offscreen timeout 4 "$@" || status=$?
    if ((status != 124)); then
        echo "$* ended with $status"
        return 1
    fi
}

# check_package <preset> <package>: a host finds the package that the build of the preset installs, moved to
# another place than it was installed to, compiles each public header alone, but of static builds, whose headers are
# the same, and runs. So do the examples.
check_package() {
    local preset=$1 package=$2 folder=$PWD/build/package/$1 prefix sample copy each=ON
    [[ $preset != *static ]] || each=OFF
    rm -rf "$folder"
    cmake --install "build/$preset" --prefix "$folder/first" >/dev/null
    prefix="$folder/moved away"
    mv "$folder/first" "$prefix"
    none < <(grep -rIl "$folder/first\|$PWD/fishbone" "$prefix")
    cmake -S cmake/consumer -B "$folder/consumer" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
        -DFISHBONE_PACKAGE="$package" -DCMAKE_PREFIX_PATH="$prefix" -DFISHBONE_EACH_HEADER="$each" \
        -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_UNITY_BUILD=ON -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
    cmake --build "$folder/consumer"

    export QT_QPA_PLATFORM=offscreen
    sample=samples/checkout-outage.fishbone.json
    copy=$folder/copy.json
    "$folder/consumer/consumer"
    stays_open "$folder/consumer/examples/minimal/fishbone-minimal" "$sample"
    "$folder/consumer/examples/model-only/fishbone-model-only" "$sample" "$copy" | tail -n 1
    "$folder/consumer/examples/task-host/fishbone-task-host" --demo "$sample"
    check_package_hosts "$preset" "$package"
    check_pkg_config "$prefix" "$folder"
    check_installed_program "$prefix" "$folder"
}

# The same host without CMake.
check_pkg_config() {
    local prefix=$1 folder=$2 file name flags
    file=$(find "$prefix" -name 'fishbone*.pc')
    name=$(basename "$file" .pc)
    PKG_CONFIG_PATH=$(dirname "$file")
    export PKG_CONFIG_PATH
    flags="$(pkg-config --cflags --libs "$name") $(pkg-config --variable=resources "$name")"
    # The output is quoted for a shell.
    eval "g++ -std=c++17 -fPIC cmake/consumer/main.cpp -o \"\$folder/plain\" $flags"
    LD_LIBRARY_PATH=$(pkg-config --variable=libdir "$name" | sed 's/\\ / /g') "$folder/plain"
}

# Builds of the library alone install no program.
check_installed_program() {
    local prefix=$1 folder=$2 program
    for program in "$prefix"/bin/fishbone*; do
        [[ -e $program ]] || return 0
        "$program" --export "$folder/picture.svg" samples/checkout-outage.fishbone.json
        grep -q '<svg' "$folder/picture.svg"
    done
    check_desktop "$prefix" "$folder"
}

# The desktop understands the entry in its menu, the description and the type of the files.
check_desktop() {
    local prefix=$1 folder=$2 type
    desktop-file-validate "$prefix"/share/applications/*.desktop
    appstreamcli validate --no-net --explain "$prefix"/share/metainfo/*.metainfo.xml
    mkdir -p "$folder/data"
    cp -r "$prefix/share/mime" "$folder/data"
    XDG_DATA_HOME=$folder/data update-mime-database "$folder/data/mime"
    cp samples/checkout-outage.fishbone.json "$folder/a.fishbone.json"
    type=$(XDG_DATA_HOME=$folder/data gio info -a standard::content-type "$folder/a.fishbone.json")
    [[ $type == *application/x-fishbone+json* ]]
}

# What is installed for Qt 5 and for Qt 6 has no file in common, so that one prefix takes both. Looks at what
# check_package installed.
check_side_by_side() {
    installed() {
        (cd "build/package/$1/moved away" && find . ! -type d | LC_ALL=C sort)
    }
    [[ $(installed release | wc -l) -gt 30 && $(installed qt6 | wc -l) -gt 30 ]]
    comm -12 <(installed release) <(installed qt6) | none
}

# check_hosts <part|fetched> <5|6> <option for CMake…>: hosts that have the library as a part of themselves work, and
# so does the one of the embedding guide, which is built with them, and is there since check_guide; the library
# installs nothing then.
check_hosts() {
    local way=$1 folder=$PWD/build/hosts/$1-$2
    rm -rf "$folder"
    mkdir -p "$folder"
    cp -r "build/guide/qt$2/$way" "$folder/guide"
    ln -s "$PWD" "$folder/guide/fishbone"
    prove "$folder/guide"
    cmake -S cmake/hosts -B "$folder/build" -G Ninja -DHOST_WAY="$way" -DHOST_GUIDE="$folder/guide" \
        -DFISHBONE_QT_MAJOR="$2" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "${@:3}"
    cmake --build "$folder/build" --target all "$way"
    export QT_QPA_PLATFORM=offscreen
    [[ $way != part ]] || "$folder/build/before"
    "$folder/build/after"
    "$folder/build/guide/$way"
    cmake --install "$folder/build" --prefix "$folder/prefix" >/dev/null
    [[ ! -e $folder/prefix ]] || find "$folder/prefix" -type f | none
}

# The same hosts with the package that check_package installed. Only with a static library there is something to
# optimize at the link.
check_package_hosts() {
    local preset=$1 package=$2 version=5 folder=$PWD/build/package/$1/hosts optimize=OFF
    [[ $preset != qt6* ]] || version=6
    [[ $preset != *static ]] || optimize=ON
    cmake -S cmake/hosts -B "$folder" -G Ninja -DHOST_WAY=package -DHOST_PACKAGE="$package" \
        -DFISHBONE_QT_MAJOR="$version" -DCMAKE_PREFIX_PATH="$PWD/build/package/$preset/moved away" \
        -DCMAKE_CXX_STANDARD=20 -DCMAKE_INTERPROCEDURAL_OPTIMIZATION="$optimize" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
    cmake --build "$folder"
    QT_QPA_PLATFORM=offscreen "$folder/after"
}

# exported <library>: what the library exports, readable and sorted. Weak symbols, which are copies of inline
# functions and of templates, depend on the compiler's mood.
exported() {
    nm --dynamic --defined-only --demangle "$1" |
        sed -nE 's/^[0-9a-f]+ [TDBR] //p' | search -vE '^(_.*)$' | LC_ALL=C sort -u
}

# check_symbols <preset> <list>: the library exports what the list says, no less, which would break programs,
# and no more without a decision.
check_symbols() {
    local library
    library=$(find "build/$1/fishbone" -name 'libfishbone*.so')
    exported "$library" | diff --unified=0 "cmake/symbols/$2" -
}

# abi_of <library>: what programs rely on of a library that was built with debugging information: the functions of
# the public headers, the sizes and virtual functions of their classes, their enumerators.
abi_of() {
    local headers=$PWD/build/abi/headers
    rm -rf "$headers"
    mkdir -p "$headers"
    grep -rlZ --include='*.h' FISHBONE_EXPORT fishbone | xargs -0 cp -t "$headers"
    abidw --exported-interfaces-only --suppressions cmake/abi/others.ini --headers-dir "$headers" \
        --drop-private-types --no-show-locs --no-corpus-path --no-comp-dir-path --no-architecture \
        --drop-undefined-syms "$1"
}

# Builds the library as abi_of wants it, and prints where it is. clang-tidy reads the sources in a build that has all
# debugging information, and is there then.
abi_library() {
    configure tidy >&2
    cmake --build --preset tidy --target fishbone >&2
    find build/tidy/fishbone -name 'libfishbone.so.*.*'
}

# Programs that run with the library of the record run with this one: nothing of what they rely on has gone or
# changed. What has come is no fault.
check_abi() {
    local folder=build/abi
    mkdir -p "$folder"
    abi_of "$(abi_library)" >"$folder/built.abi"
    xz --decompress --stdout cmake/abi/fishbone.abi.xz >"$folder/recorded.abi"
    # Without debugging information there is nothing to compare.
    [[ $(grep -c '<function-decl' "$folder/recorded.abi") -gt 500 && $(grep -c '<function-decl' "$folder/built.abi") -gt 500 ]]
    abidiff --no-added-syms --no-unreferenced-symbols --suppressions cmake/abi/others.ini \
        "$folder/recorded.abi" "$folder/built.abi"
}

# The drawing of the folders shows what the sources include of each other. Its picture is compared by what it
# shows, since another version of the drawing program places things elsewhere.
check_drawing() {
    local drawn=$PWD/build/drawing name
    mkdir -p "$drawn"
    scripts/update-drawing "$drawn"
    for name in folders program; do
        diff --unified=0 "docs/pictures/$name.dot" "$drawn/$name.dot"
        diff <(grep -o '<title>[^<]*' "docs/pictures/$name.svg") <(grep -o '<title>[^<]*' "$drawn/$name.svg")
    done
}

# Every public name is documented, or Doxygen fails.
check_documentation() {
    cmake --preset docs >/dev/null
    cmake --build --preset docs
    [[ -s build/docs/docs/html/classFishEditor.html ]]
}

# prove <folder>: the host of the guide in that folder opens no window any more, but does what the guide promises
# of it, and tells.
prove() {
    sed 's/#include <window.h>/#include "window.h"/' cmake/hosts/guide.cpp >"$1/main.cpp"
}

# check_guide <5|6> <preset>: every block of code in the embedding guide does what the guide says, with the package
# that check_package installed of the build of the preset.
check_guide() {
    local folder=$PWD/build/guide/qt$1 options=()
    [[ $1 == 5 ]] || options=(--qt6)
    rm -rf "$folder"
    mkdir -p "$folder"
    scripts/guide-steps "${options[@]}" docs/embedding.md >"$folder/steps"
    # The guide knows no blanks in a prefix.
    ln -s "$PWD/build/package/$2/moved away" "$folder/prefix"
    ln -s "$PWD" "$folder/fishbone" # its readers have the sources there
    (
        cd "$folder" || exit
        export CMAKE_PREFIX_PATH=$folder/prefix PKG_CONFIG_PATH=$folder/prefix/lib/pkgconfig
        export LD_LIBRARY_PATH=$folder/prefix/lib
        # Where Debian keeps the links to ccache, for whatever builds the host.
        PATH=/usr/lib/ccache:$PATH
        bash -euo pipefail steps
        cd "$OLDPWD" || exit
        prove_guide "$folder"
    )
}

# The hosts that the guide's reader has in that folder then.
prove_guide() {
    local name
    export QT_QPA_PLATFORM=offscreen
    "$1/task-host/fishbone-task-host" --demo
    [[ -s $1/tasks.sqlite ]] # which its window has made
    for name in host meson qmake; do
        prove "$1/$name"
    done
    cmake --build "$1/host/build"
    "$1/host/build/host"
    meson compile -C "$1/meson/build"
    "$1/meson/build/host"
    make -C "$1/qmake"
    "$1/qmake/host"
}

# Each way in that the embedding guide has a heading for is one that a check of scripts/test builds, as the list
# says, and the list has no others.
check_ways() {
    local list=cmake/hosts/ways.txt name
    sed -n '/^## Ways in$/,/^## [^W]/s/^### //p' docs/embedding.md | LC_ALL=C sort >build/ways
    [[ $(wc -l <build/ways) -ge 8 ]]
    {
        sed -n 's/^\([^#].*\): .*/\1/p' "$list" | LC_ALL=C sort | diff build/ways -
        sed -n 's/^[^#].*: //p' "$list" | tr ';' '\n' | sed 's/^ *//' | while read -r name; do
            grep -qF "check \"$name\" " scripts/test || echo "$list: scripts/test has no check \"$name\""
        done
    } | none
}

# The documents and styles that come along keep to the schema. What is saved is validated by a test.
check_schema() {
    scripts/validate-documents samples/*.json resources/*.json resources/*.spearstyle \
        tests/style/toolkits/*.json tests/style/toolkits/*.spearstyle
}

# The Python module as it is installed, under the debug allocator of the interpreter, and its types. It is built with the
# library of the optimized build, which is there.
check_python() {
    local folder=$PWD/build/package/python package component
    cmake --preset python >/dev/null
    cmake --build --preset python
    rm -rf "$folder"
    for component in runtime python; do
        cmake --install build/release --component "$component" --prefix "$folder" >/dev/null
    done
    package=$(find "$folder" -type d -name fishbone -path '*/site-packages/*')
    PYTHONPATH=$(dirname "$package") PYTHONMALLOC=debug PYTHONDONTWRITEBYTECODE=1 QT_QPA_PLATFORM=offscreen \
        /usr/bin/python3 -X faulthandler -m pytest -q -p no:cacheprovider python/tests
    (cd python && /usr/bin/python3 -m mypy --config-file=mypy.ini --cache-dir="$folder/mypy" fishbone examples)
}
