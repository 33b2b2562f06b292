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
    cmake -S cmake/consumer -B "$folder/consumer" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DFISHBONE_PACKAGE="$package" -DCMAKE_PREFIX_PATH="$prefix" -DFISHBONE_EACH_HEADER="$each" \
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
    cmake --build "$folder/consumer"

    export QT_QPA_PLATFORM=offscreen
    sample=samples/checkout-outage.fishbone.json
    copy=$folder/copy.json
    "$folder/consumer/consumer"
    stays_open "$folder/consumer/examples/minimal/fishbone-minimal" "$sample"
    "$folder/consumer/examples/model-only/fishbone-model-only" "$sample" "$copy" | tail -n 1
    "$folder/consumer/examples/task-host/fishbone-task-host" --demo "$sample"
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

# check_embedded <part|fetched> <option for CMake>: the library is built as a part of a host, in the way that
# the embedding guide shows under that name, and installs nothing then.
check_embedded() {
    local folder=$PWD/build/embedded top=$PWD
    rm -rf "${folder:?}/$1"
    mkdir -p "$folder"
    scripts/guide-steps docs/embedding.md | sed -n "/^mkdir .*\"$1\//,/^END_OF_FILE/p" >"$folder/steps"
    (cd "$folder" && bash -euo pipefail steps && ln -s "$top" "$1/fishbone")
    cp cmake/consumer/main.cpp "$folder/$1"
    cmake -S "$folder/$1" -B "$folder/$1/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "${@:2}"
    cmake --build "$folder/$1/build"
    QT_QPA_PLATFORM=offscreen "$folder/$1/build/$1"
    cmake --install "$folder/$1/build" --prefix "$folder/$1/prefix" >/dev/null
    [[ ! -e $folder/$1/prefix ]] || find "$folder/$1/prefix" -type f | none
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

# Builds the library as abi_of wants it, and prints where it is.
abi_library() {
    configure dev >&2
    cmake --build --preset dev --target fishbone >&2
    find build/dev/fishbone -name 'libfishbone.so.*.*'
}

# Programs that run with the library of the record run with this one: nothing of what they rely on has gone or
# changed. What has come is no fault.
check_abi() {
    local folder=build/abi
    mkdir -p "$folder"
    abi_of "$(abi_library)" >"$folder/built.abi"
    xz --decompress --stdout cmake/abi/fishbone.abi.xz >"$folder/recorded.abi"
    [[ $(grep -c '<function-decl' "$folder/recorded.abi") -gt 500 ]]
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

# Every block of code in the embedding guide does what the guide says, with the package that was installed for
# check_package.
check_guide() {
    local folder=$PWD/build/guide
    rm -rf "$folder"
    mkdir -p "$folder"
    scripts/guide-steps docs/embedding.md >"$folder/steps"
    # The guide knows no blanks in a prefix.
    ln -s "$PWD/build/package/release/moved away" "$folder/prefix"
    (
        cd "$folder" || exit
        export CMAKE_PREFIX_PATH=$folder/prefix PKG_CONFIG_PATH=$folder/prefix/lib/pkgconfig
        export LD_LIBRARY_PATH=$folder/prefix/lib
        bash -euo pipefail steps
    )
}

# The documents and styles that come along keep to the schema. What is saved is validated by a test.
check_schema() {
    scripts/validate-documents samples/*.json resources/*.json resources/*.spearstyle \
        tests/style/toolkits/*.json tests/style/toolkits/*.spearstyle
}
