#!/usr/bin/env bash
# translations.sh SOURCES SCRATCH LUPDATE: updating the catalogues loses nothing, German is complete, and an empty
# catalogue of another language receives every text.
set -euo pipefail
sources=$1 scratch=$2
export LUPDATE=$3
rm -rf "$scratch"
mkdir -p "$scratch"
cp -r "$sources"/{apps,echo,properties,cmake} "$scratch"
for catalogue in echo/i18n/tiv_echotable_dll apps/texts/echo_apps; do
    echo '<TS version="2.1" language="fr_FR" sourcelanguage="en"/>' >"$scratch/${catalogue}_fr.ts"
done
"$scratch/cmake/translations.sh" "$scratch" 2>/dev/null
for catalogue in echo/i18n/tiv_echotable_dll apps/texts/echo_apps; do
    german=$scratch/${catalogue}_de.ts
    diff -u "$sources/${catalogue}_de.ts" "$german"
    if grep -n unfinished "$german"; then exit 1; fi
    diff <(grep '<source>' "$german" | sort) <(grep '<source>' "$scratch/${catalogue}_fr.ts" | sort)
done
diff -u {"$sources","$scratch"}/echo/i18n/inspector_texts.h
