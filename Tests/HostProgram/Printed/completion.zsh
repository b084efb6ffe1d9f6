#compdef proupsells
_proupsells() {
    local -a commands
    commands=(
        'show:A window; one line for every event on standard output until it closes'
        'run:A scripted run on a virtual clock, without a window'
        'texts:Every text of the screens with its comment, for translators'
        'read:What a screen reader says, as text to compare'
        'lint:What is wrong with offers and with translations'
        'audit:What is wrong with the screens, however they are shown'
        'gallery:Pictures of all screens, however they are shown, in one page'
        'evidence:What a customer was shown and agreed to, word by word, as one document'
        'completion:A script that makes a shell complete what is typed'
        'manual:All that --help says, as a page for man(1)'
    )
    if ((CURRENT == 2)); then
        _describe command commands
        return
    fi
    local command=${words[2]}
    shift words
    ((CURRENT--))
    case $command in
        show) _arguments \
            '--help[Print this help message and exit]' \
            '--size[The window in points, such as 375x800]:value:_files' \
            '--scale[Pixels a point]:value:_files' \
            '--appearance[light or dark]:value:_files' \
            '--locale[Language and region, such as de_AT]:value:_files' \
            '--layout-direction[auto, ltr or rtl]:value:_files' \
            '--text-size[extraSmall ... accessibilityExtraExtraExtraLarge]:value:_files' \
            '--reduce-motion[Less movement]' \
            '--safe-area[Top, left, bottom, right in points, such as 0,0,34,0]:value:_files' \
            '--strings[A folder of <language>.lproj/Localizable.strings]:value:_files' \
            '--theme[A file with colours, typefaces and pictures of a brand]:value:_files' \
            '--start[paywall, comparison or store]:value:_files' \
            '--record[A file for what is done, which `proupsells run` plays]:value:_files' \
            '--watch[Follows changes of offers, translations and theme]' \
            '*:file:_files' ;;
        run) _arguments \
            '--help[Print this help message and exit]' \
            '--out[Where pictures go; the current folder when left out]:value:_files' \
            '*:file:_files' ;;
        texts) _arguments \
            '--help[Print this help message and exit]' \
            '--format[strings, pot or json]:value:_files' \
            '*:file:_files' ;;
        read) _arguments \
            '--help[Print this help message and exit]' \
            '--offers[The offers of a screen; the sample ones when left out]:value:_files' \
            '--size[The window in points, such as 375x800]:value:_files' \
            '--scale[Pixels a point]:value:_files' \
            '--appearance[light or dark]:value:_files' \
            '--locale[Language and region, such as de_AT]:value:_files' \
            '--layout-direction[auto, ltr or rtl]:value:_files' \
            '--text-size[extraSmall ... accessibilityExtraExtraExtraLarge]:value:_files' \
            '--reduce-motion[Less movement]' \
            '--safe-area[Top, left, bottom, right in points, such as 0,0,34,0]:value:_files' \
            '--strings[A folder of <language>.lproj/Localizable.strings]:value:_files' \
            '--theme[A file with colours, typefaces and pictures of a brand]:value:_files' \
            '*:file:_files' ;;
        lint) _arguments \
            '--help[Print this help message and exit]' \
            '--strings[A folder of <language>.lproj/Localizable.strings]:value:_files' \
            '--accept[A file of findings that are known, each with a reason]:value:_files' \
            '--format[text or json]:value:_files' \
            '*:file:_files' ;;
        audit) _arguments \
            '--help[Print this help message and exit]' \
            '--matrix[A file with locales, sizes, textSizes, appearances, of offers also screens; all of them]:value:_files' \
            '--accept[A file of findings that are known, each with a reason]:value:_files' \
            '--strings[A folder of <language>.lproj/Localizable.strings]:value:_files' \
            '--theme[A file with colours, typefaces and pictures of a brand]:value:_files' \
            '--format[text, json or sarif]:value:_files' \
            '*:file:_files' ;;
        gallery) _arguments \
            '--help[Print this help message and exit]' \
            '--out[The folder of the gallery, a new one or one to write over]:value:_files' \
            '--compare[The folder of another gallery\: the page shows what has changed]:value:_files' \
            '--matrix[A file with screens, locales, sizes, textSizes, appearances, scale]:value:_files' \
            '--strings[A folder of <language>.lproj/Localizable.strings]:value:_files' \
            '--theme[A file with colours, typefaces and pictures of a brand]:value:_files' \
            '*:file:_files' ;;
        evidence) _arguments \
            '--help[Print this help message and exit]' \
            '--out[The document, a page of HTML with its pictures inside]:value:_files' \
            '*:file:_files' ;;
        completion) _arguments \
            '--help[Print this help message and exit]' \
            '*:file:_files' ;;
        manual) _arguments \
            '--help[Print this help message and exit]' \
            '*:file:_files' ;;
    esac
}
_proupsells "$@"
