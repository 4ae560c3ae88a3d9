#!/usr/bin/env bash
# translations.sh [SOURCES]: brings every catalogue in the source folder up to date with the texts of the sources.
# LUPDATE names the lupdate to use. A new language begins as a file with this line:
#     <TS version="2.1" language="fr_FR" sourcelanguage="en"/>
set -euo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/..}"

# The sources of properties/ name no translation context, which lupdate needs. This lists every text("...") and
# QT_TR_NOOP("...") of the inspector in the context of the library.
inspector_texts() {
    echo "// Made by ./dev translations from the inspector's sources, for lupdate."
    echo "// clang-format off"
    echo "const char* const inspectorTexts[] = {"
    cat properties/qt/src/*.cpp properties/qt/src/*.h | tr '\n' ' ' |
        grep -oE '\<(text|QT_TR_NOOP)\( *"([^"\\]|\\.)*"( +"([^"\\]|\\.)*")* *\)' |
        sed -E 's/^[^"]*/    QT_TRANSLATE_NOOP("EchoData", /; s/$/,/' | LC_ALL=C sort -u
    echo "};"
}

update() { # <folder of sources> <catalogue>...
    "${LUPDATE:-lupdate}" -silent -locations none -I . -I echo/inc "$1" -ts "${@:2}"
}

inspector_texts >echo/i18n/inspector_texts.h
update echo echo/i18n/*.ts
update apps apps/texts/*.ts
