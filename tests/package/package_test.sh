#!/usr/bin/env bash
# Builds the Debian package from the build tree, checks what it holds and declares, validates its
# desktop entry and software centre description, unpacks it into a root of its own and runs both
# programs from there.
set -euo pipefail
build=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() { echo "package test: $*" >&2; exit 1; }

cpack --config "$build/CPackConfig.cmake" -B "$scratch/out" >/dev/null
deb=$(ls "$scratch"/out/korvath3_*_amd64.deb 2>/dev/null | head -1)
[ -n "$deb" ] || fail "no package was made"

info=$(dpkg-deb --info "$deb")
grep -q '^ Package: korvath3$' <<<"$info" || fail "the package is not named korvath3"
for needed in libqt6widgets6 libqt6printsupport6 libstdc++6 fonts-liberation; do
  grep '^ Depends:' <<<"$info" | grep -q "$needed" || fail "the package does not depend on $needed"
done

contents=$(dpkg-deb --contents "$deb" | awk '{print $6}')
for file in ./usr/bin/korvath3 ./usr/bin/korvath3-cli \
            ./usr/share/applications/korvath3.desktop \
            ./usr/share/mime/packages/korvath3.xml \
            ./usr/share/icons/hicolor/scalable/apps/korvath3.svg \
            ./usr/share/metainfo/com.brellinworks.Korvath3.metainfo.xml \
            ./usr/share/korvath3/examples/expansive_ribbed.kvt; do
  grep -qx "$file" <<<"$contents" || fail "the package lacks $file"
done

root=$scratch/root
dpkg-deb -x "$deb" "$root"
desktop-file-validate "$root/usr/share/applications/korvath3.desktop" \
  || fail "the desktop entry is not valid"
appstreamcli validate --no-net --pedantic \
  "$root/usr/share/metainfo/com.brellinworks.Korvath3.metainfo.xml" >/dev/null \
  || fail "the metainfo is not valid"

export KORVATH3_SETTINGS=$scratch/settings.conf
out=$("$root/usr/bin/korvath3-cli" analyze "$root/usr/share/korvath3/examples/expansive_ribbed.kvt" --json)
grep -q '"fault": null' <<<"$out" || fail "the unpacked korvath3-cli did not analyse the example"
grep -q '"version": 3' <<<"$out" || fail "the unpacked korvath3-cli did not read the example"
version=$(env -u DISPLAY -u WAYLAND_DISPLAY "$root/usr/bin/korvath3" --version)
[ "$version" = "Korvath 3.0 (Build 100712)" ] || fail "korvath3 --version printed: $version"
echo "package test: $(basename "$deb") built, validated, unpacked and run"
