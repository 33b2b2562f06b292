# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Checks of the sources and of what is built from them. Each function prints what it found wrong and
# fails when that is anything at all.

# The C++ files of the project; with an argument only those with that ending.
sources() {
    local folder folders=()
    for folder in app benchmarks cmake designer examples fishbone fuzz python tests; do
        [[ ! -d $folder ]] || folders+=("$folder")
    done
    find "${folders[@]}" -type f \( -name "*.${1:-h}" -o -name "*.${1:-cpp}" \) | sort
}

# grep, for which finding nothing is no failure, while an error stays one.
search() {
    grep "$@" || (($? == 1))
}

# Prints the findings that come in, and fails when there are any.
none() {
    ! grep .
}

check_format() {
    sources | xargs clang-format --dry-run --Werror
}

check_scripts() {
    local scripts
    mapfile -t scripts <<<"$(grep -lE '^#!.*bash' scripts/* .ci/* packaging/*/*)"
    shellcheck --external-sources "${scripts[@]}" scripts/*.sh resources/*.bash
    # Of several names the command is content with one that exists, and says nothing of the others.
    search -nE 'command -v +[^ >|&;)]+ +[^ >|&;)]' "${scripts[@]}" scripts/*.sh | none
}

# What cppcheck remembers of each file makes the next time fast.
check_cppcheck() {
    local memory=build/cppcheck
    mkdir -p "$memory"
    cppcheck --quiet --cppcheck-build-dir="$memory" --std=c++17 --library=qt -I . \
        -D FISHBONE_EXPORT= -D FISHBONE_NO_EXPORT= -D Q_OS_UNIX \
        --enable=warning,performance,portability --suppressions-list=scripts/cppcheck.txt \
        --error-exitcode=1 fishbone app
}

# Every file says whose it is and under which terms, a script below its first line.
check_licence_lines() {
    local file
    {
        sources
        find . -path ./build -prune -o \( -name CMakeLists.txt -o -name '*.cmake' \) -print
        find scripts .ci packaging -type f ! -name '*.txt'
        find python -name '*.py' -o -name '*.pyi'
    } | while read -r file; do
        if [[ $(head -n 3 "$file") != *SPDX-FileCopyrightText:\ *' The Fishbone authors'*SPDX-License-Identifier:\ MIT* ]]; then
            echo "$file: no licence lines on top"
        fi
    done | none
}

check_include_guards() {
    local file
    sources h | while read -r file; do
        grep -q '^#pragma once$' "$file" || echo "$file: no #pragma once"
    done | none
}

# What only forwards has no long functions but those that make it: prints each that has more than nine lines.
long_functions() {
    awk 'FNR == 1 { body = 0 }
         /^[A-Za-z].*\(/ { signature = $0 }
         /^\{/ { body = FNR }
         /^\}/ && body {
             if (FNR - body > 10 && signature !~ /^[A-Z][A-Za-z]+::[A-Z]/)
                 print FILENAME ":" body ": " FNR - body - 1 " lines in what only forwards"
             body = 0
         }' "$@"
}

# A source that nobody reads to its end is several, and so is a class: its header and sources, NAME.h, NAME.cpp and
# those NAME_*.cpp that have no header of their own, are short together, but for what scripts/long.txt gives a reason
# for. A line there that is not needed any more fails.
check_lengths() {
    local files most=500 header name reasons=scripts/long.txt class=400 lines source line
    mapfile -t files <<<"$(sources)"
    {
        wc -l "${files[@]}" | awk -v most="$most" '$2 != "total" && $1 > most { print $2 ": " $1 " lines, more than " most }'
        find app fishbone -name '*.h' | sort | while read -r header; do
            name=${header%.h}
            files=("$header")
            for source in "$name.cpp" "$name"_*.cpp; do
                [[ ! -f $source || ($source != "$name.cpp" && -f ${source%.cpp}.h) ]] || files+=("$source")
            done
            lines=$(cat "${files[@]}" | wc -l)
            line=$(search -E "^$name: [^ ]" "$reasons")
            if ((lines > class)); then
                [[ -n $line ]] || echo "$name: $lines lines with its header, more than $class"
                [[ $line != *": forwards to"* ]] || long_functions "${files[@]:1}"
            else
                [[ -z $line ]] || echo "$name: $lines lines, and a line in $reasons"
            fi
        done
        sed -n 's/: .*//; /^[^#]/p' "$reasons" | while read -r name; do
            [[ -f $name.h ]] || echo "$reasons: there is no $name.h"
        done
    } | none
}

# A class outside a namespace has a name of its own in library, program, examples and tests: they are linked
# with each other, and of two classes with one name the linker takes the functions of either. And what the page on
# architecture names is there.
check_class_names() {
    local headers
    mapfile -t headers <<<"$(sources h)"
    awk '/^namespace [A-Za-z:]+ \{/ { inside = 1 }
         /^\}/ { inside = 0 }
         FNR == 1 { inside = 0 }
         !inside && /^(class|struct) / && !/;$/ {
             sub(/^(class|struct) /, "")
             sub(/^(FISHBONE_EXPORT|FISHBONE_NO_EXPORT|FISHBONE_DESIGNER_EXPORT) /, "")
             if (/^[A-Za-z0-9_]+::/)
                 next
             sub(/[^A-Za-z0-9_].*/, "")
             if ($0 in seen)
                 print FILENAME ": " $0 " is in " seen[$0] ", too"
             seen[$0] = FILENAME
         }' "${headers[@]}" | none && check_architecture
}

# There is one spelling of an include, from the top folder; only moc output is included as a neighbour. And what a
# source includes first is the header of its name, which so includes all that it needs itself.
check_includes() {
    local files source header
    mapfile -t files <<<"$(sources)"
    {
        search -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]+"' "${files[@]}" |
            search -vE '"[a-z0-9_]+\.moc"$'
        find app fishbone -name '*.cpp' | sort | while read -r source; do
            header=${source%.cpp}.h
            [[ ! -f $header || $(search -m 1 '^#include' "$source") == "#include <$header>" ]] ||
                echo "$source: does not include <$header> first"
        done
    } | none
}

# The folders of the library use each other in one direction.
check_layers() {
    scripts/check-layers
}

# The program reaches into the library, and its tests and the benchmarks into both, by public functions: they look for
# no timers, no network replies, no controls of dialogs and no texts of theirs, emit no signal of another object, leave
# the working folder of the process alone, run their commands through the editor, and take no connection apart again
# from within what it calls. The dialog that prints is the toolkit's and has no door for the name of a file.
check_back_doors() {
    {
        search -rnE 'findChild(ren)?<(const )?(QTimer|QNetwork)' app benchmarks tests/app
        search -rnE '[iI]alog(\.|->)findChild(ren)?<(const )?(QCheckBox|QComboBox|QLineEdit)' app benchmarks |
            search -vF 'app/export/printtarget.cpp:'
        search -rnE '\b(ReplaceFindDialog|URLDialog|SpearStyleDialog|PenSelect|FishEditor)::tr\(' app benchmarks tests/app
        search -rnE 'Q_EMIT [A-Za-z_]+(\(\))?(->|\.)' app benchmarks | search -vF 'Q_EMIT self.'
        search -rnE 'Q_EMIT .*\b(model|editor)(\(\))?(->|\.)' tests/app
        search -rnE 'QMetaObject::Connection \*?[A-Za-z_]+( =|;|\{)' app benchmarks tests/app
        search -rnE 'QDir::setCurrent' app benchmarks tests/app
        search -rn 'undoStack()->push' app tests/app
        # Whoever asks for options asks for the look that has them: there may be more looks without.
        search -rnE '[!=]= DiagramLook::Classic' app python
    } | none
}

# The files and classes that the page on architecture names are there: `name.h`, `folder/name.cpp`, `folder/` of the
# project, the library or the program, `SomeClass`, `function()`.
check_architecture() {
    local name page=docs/architecture.md
    # shellcheck disable=SC2016 # these are the quotes of the page
    search -oE '`[^`]+`' "$page" | tr -d '\`' | sort -u | while read -r name; do
        if [[ $name =~ ^[A-Za-z_/]+(\.[a-z]+|/)$ ]]; then
            [[ -e $name || -n $(find fishbone app -path "*/${name%/}" -print -quit) ]] ||
                echo "$page: there is no $name"
        elif [[ $name =~ ^[A-Z][A-Za-z]+(::[A-Za-z]+)?(\(.*\))?$|^[a-z][A-Za-z]+\(.*\)$ ]]; then
            name=${name%%(*}
            grep -rqwF "${name##*::}" fishbone app || echo "$page: there is no $name"
        fi
    done | none
}

# Each public header, which is one that exports something, has test programs of its name; the classes in them are called
# TestOfWhat.
check_tests_exist() {
    local header name
    {
        grep -rl --include='*.h' FISHBONE_EXPORT fishbone | sort | while read -r header; do
            name=tst_$(basename "$header" .h)
            compgen -G "tests/*/$name.cpp" >/dev/null || compgen -G "tests/*/${name}_*.cpp" >/dev/null ||
                echo "$header: no tests/*/$name.cpp"
        done
        search -rnE '^class tst_' tests
    } | none
}

# Each class of the program and of the two folders that everything stands on has a test program of its name, or a line in
# scripts/untested.txt with the tests that run it.
check_tests_named() {
    local header line name known words=scripts/untested.txt
    known=$(find tests -name 'tst_*.cpp' -printf '%f\n')
    {
        find app fishbone/base fishbone/drawing -name '*.h' | sort | while read -r header; do
            line=$(search -F "$header: " "$words")
            if grep -qE "^tst_$(basename "$header" .h)(_.*)?\.cpp\$" <<<"$known"; then
                [[ -z $line ]] || echo "$header: has a test, and a line in $words"
            elif [[ -z $line ]]; then
                echo "$header: neither tst_$(basename "$header" .h).cpp nor a line in $words"
            fi
        done
        sed -n 's/: .*//; /^[^#]/p' "$words" | while read -r header; do
            [[ -f $header ]] || echo "$words: there is no $header"
        done
        search -oE '\btst_[a-z_]+' "$words" | sort -u | while read -r name; do
            grep -qxF "$name.cpp" <<<"$known" || echo "$words: there is no $name"
        done
        search -nvE '^(#.*|[^:]+: tst_.*)?$' "$words"
    } | none
}

# Each test program is one that ctest runs.
check_tests_registered() {
    local known file
    known=$(ctest --preset "$1" --show-only)
    find tests -name 'tst_*.cpp' | sort | while read -r file; do
        grep -qE ": $(basename "$file" .cpp)\$" <<<"$known" || echo "$file: not registered"
    done | none
}

# One form of comments that Doxygen reads: /** … */ with @commands, and ///< behind a member.
check_comment_form() {
    search -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*///([^<]|$)|(/\*\*|///<|^ +\*).*\\(a|b|c|e|p|brief|name|param|return) ' \
        fishbone app tests benchmarks designer examples fuzz python | none
}

# Marks of unfinished work, of a merge and of one developer's machine, and tests that cannot fail. In outlines
# of org-mode and of programs like it the first of these marks is a keyword.
check_words() {
    {
        search -rnIE --exclude-dir=build --exclude-dir=.git --exclude=checks.sh \
            --exclude-dir=org --exclude-dir=opml --exclude='org*' --exclude=import.dict --exclude=formats.md \
            '\b(TODO|FIXME|XXX|HACK)\b|^(<{7}|>{7}) |(^|[^A-Za-z0-9.])/(home|root|Users)/[a-z]' .
        search -rnE 'QVERIFY2?\((true|1)\b' tests
    } | none
}

# The translations hold the texts of the sources and no others, and each of them is translated.
check_translations() {
    local copies=$PWD/build/translations
    rm -rf "$copies"
    mkdir -p "$copies"
    cp translations/*.ts "$copies"
    {
        scripts/update-translations "$copies" 2>&1
        search -nE 'type="(unfinished|vanished|obsolete)"' "$copies"/*.ts
        diff --recursive --unified=1 --exclude=CMakeLists.txt --exclude='*.qrc.in' --exclude=glossary.csv --exclude=summaries.txt translations "$copies"
    } | none
}

# Where there is no display, scripts/run draws a sample.
check_run() {
    local picture
    picture=$(env -u DISPLAY -u WAYLAND_DISPLAY scripts/run | tail -n 1 | sed 's/.* is drawn in //')
    [[ $(head -c 4 "$picture" | tail -c 3) == PNG ]]
}
