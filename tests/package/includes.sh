#!/usr/bin/env bash
# No folder includes from one above it: apps -> echo -> properties -> bond, and echo -> platform.
cd "$1" || exit
failed=0
while read -r folder forbidden; do
    grep -rnE --include='*.h' --include='*.cpp' "^ *# *include +[<\"]($forbidden)" "$folder"
    [ $? = 1 ] || { echo "$folder: must exist, and include nothing that begins with $forbidden" && failed=1; }
done <<'RULES'
apps/echohost         apps/echotable/|echo/|properties/|platform/|nextgen/
echo                  apps/
properties            apps/|echo/|platform/|tiv/
properties/container  properties/(definitions|qt|translation)/|nextgen/|bond/|Q
properties/definitions  apps/|echo/|platform/|properties/qt/src/|QWidget
bond                  apps/|echo/|platform/|tiv/|properties/|nextgen/|Q
platform              apps/|echo/|tiv/echo/|properties/|nextgen/|bond/
platform/dbo          Q
platform/smartassert  Q|tiv/dbo/
RULES
exit $failed
