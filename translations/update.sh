#!/usr/bin/env bash
# update.sh SOURCE_DIR: brings every translation up to date with the messages of the sources.
set -euo pipefail
cd "$1"
tools=/usr/lib/qt5/bin
[ -x "$tools/lupdate" ] || tools=$(dirname "$(command -v lupdate)")
update() {
    "$tools/lupdate" -silent -locations none -no-obsolete "$@" 2>/dev/null
}
update src krxcontrol -ts translations/orvandata_*.ts
update designer -ts translations/orvan-designer_*.ts
