#!/bin/sh
# Fails if a text of the program is missing in a translation, is not finished there, or no longer exists.
# Usage: translations.sh LUPDATE SOURCE_DIRECTORY
set -eu
copies=$(mktemp -d)
trap 'rm -r "$copies"' EXIT
cp "$2"/resources/translations/*.ts "$copies"
"$1" -silent -locations none -I "$2/src" "$2/src" -ts "$copies"/*.ts
if grep -nE -B4 'type="(unfinished|vanished|obsolete)"' "$copies"/*.ts; then
    echo "Build the target update_translations, then translate what it marks as unfinished." >&2
    exit 1
fi
