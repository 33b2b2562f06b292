# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# Completes the arguments of fishbone in bash. Where nothing else fits there are the names of files.

_fishbone() {
    local current=${COMP_WORDS[COMP_CWORD]} words='' command=''
    ((COMP_CWORD == 1)) || command=${COMP_WORDS[1]}
    case ${COMP_WORDS[COMP_CWORD - 1]} in
        --from) words='json md txt opml mm mmd csv xmind xlsx org puml' ;;
        --to) words='json md txt opml mm mmd csv xmind xlsx org drawio' ;;
        --language) words='en ar de es fr it ja ko pl pt_BR ru zh zh_TW' ;;
        --expand) words='all none' ;;
        --background) words='white transparent' ;;
        --look) words='clear classic' ;;
        --page) words='A4 A3 Letter 1920x1080' ;;
        --palette) words='colour gray dark' ;;
        --head) words='right left' ;;
        --export | --size | --scale | --translations) ;;
        *)
            local pictures='--expand --size --scale --background --look --page --legend --no-legend --palette --head'
            case $command in
                convert) words="--help --language --from --to --strict $pictures" ;;
                info) words='--help --language --from --json' ;;
                report | check) words='--help --language --from' ;;
                merge) words='--help --language' ;;
                *) words="--help --version --language --translations --export $pictures" ;;
            esac
            [[ $current == -* ]] || words=
            ((COMP_CWORD > 1)) || words+=' convert info report check merge'
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -o bashdefault -o default -F _fishbone fishbone fishbone-qt6
