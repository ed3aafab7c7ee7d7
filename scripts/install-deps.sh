#!/usr/bin/env bash
# Installs the Debian packages Pelvane builds, tests and is looked at with.
# Quiet and quick when everything is already present.
set -euo pipefail

packages=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools libqt6opengl6-dev
  qt6-pdf-dev libqt6pdfwidgets6
  qt6-charts-dev
  qt6-multimedia-dev libqt6multimediawidgets6
  qt6-image-formats-plugins qt6-svg-dev libqt6svg6
  qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
  libsqlite3-dev libjpeg-dev libssl-dev
  libgtest-dev libgmock-dev
  fonts-liberation fonts-wqy-microhei
  xvfb xauth poppler-utils
  appstream desktop-file-utils
  dpkg-dev file faketime
  clang-format
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO=sudo
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
