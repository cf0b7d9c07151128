#!/bin/sh
# Brings the Linguist files up to date with the visible texts in the sources: new texts come in as unfinished,
# texts that are gone go. Needs lupdate (qttools5-dev-tools). The words of the simulated car (carwords_*.ts) are made of
# names, where lupdate sees no text; tst_deskwidgets tells which ones lack a translation.
set -eu

cd "$(dirname "$0")/.."
for language in $(sed -n 's/^set(CANBUS_LANGUAGES \(.*\))$/\1/p' cmake/CanBusTranslations.cmake); do
    lupdate -silent -locations none -no-obsolete plugin \
        -target-language "$language" -ts "plugin/translations/canbus_$language.ts"
    lupdate -silent -locations none -no-obsolete platform/orbcommons \
        -target-language "$language" -ts "platform/orbcommons/translations/orbcommons_$language.ts"
    lupdate -silent -locations none -no-obsolete workbench/headunit \
        -target-language "$language" -ts "workbench/headunit/translations/headunit_$language.ts"
done
grep -l 'type="unfinished"' plugin/translations/*.ts platform/orbcommons/translations/*.ts \
    workbench/headunit/translations/*.ts || true
