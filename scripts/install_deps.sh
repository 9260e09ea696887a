#!/usr/bin/env bash
# Installs what the build and the tests need from Debian's packages, if missing.
set -euo pipefail
# groff-base and man-db check the manual page; dpkg-dev and file let cpack make the Debian
# package with its dependencies, and lintian checks it; afl++ fuzzes. python3-jsonschema
# validates brixmap's JSON against its schema, pandoc renders its Markdown; gcc compiles its
# C headers, xmllint (libxml2-utils) validates its IP-XACT; chromium with its driver and
# python3-selenium open its HTML pages.
pkgs=(cmake g++ make tcl-dev flex bison libgtest-dev libgmock-dev verilator groff-base man-db
      dpkg-dev file lintian afl++ python3-jsonschema pandoc gcc libxml2-utils chromium
      chromium-driver python3-selenium)
missing=()
for p in "${pkgs[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    SUDO=""
    [ "$(id -u)" -eq 0 ] || SUDO=sudo
    $SUDO apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq "${missing[@]}" >/dev/null
fi
