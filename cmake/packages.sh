# Sourced by the commands of the root: installs what is missing on a bare Debian 12, and does nothing when all is there.

NALVO_BUILD_PACKAGES="g++ cmake ninja-build qtbase5-dev libqt5svg5-dev qtscript5-dev qttools5-dev qhelpgenerator-qt5 libqt5webkit5-dev
 libcmark-gfm-dev libcmark-gfm-extensions-dev libgtest-dev libgmock-dev fonts-dejavu-core fonts-dejavu-extra"
# The first line checks and runs our own; the others read what is made for other tools, for desktops and shells, and for other editors:
# the library that highlights for Kate, the schema of GtkSourceView, Vim.
NALVO_TEST_PACKAGES="ghdl iverilog clang-format hunspell hunspell-en-gb chromium-headless-shell
 binutils make srecord python3-yaml
 desktop-file-utils appstream shared-mime-info man-db zsh
 libkf5syntaxhighlighting-tools libgtksourceview-4-common libxml2-utils vim"
# For tools/package alone.
NALVO_PACKAGE_PACKAGES="debhelper lintian"

# need_packages NAME ...
need_packages() {
  missing=""
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed" || missing="$missing $package"
  done
  [ -n "$missing" ] || return 0
  echo "Installing packages:$missing" >&2
  as_root=""
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null 2>&1 || {
      echo "These packages are missing, and sudo is not there to install them. As root, run: apt-get install$missing" >&2
      return 1
    }
    as_root="sudo"
  fi
  # What the package manager prints is read when it fails.
  mkdir -p "$root/build"
  packages_log="$root/build/packages.log"
  {
    install_packages $missing || { $as_root apt-get -q update && install_packages $missing; }
  } >"$packages_log" 2>&1 || {
    cat "$packages_log" >&2
    return 1
  }
}

# install_packages NAME ...
install_packages() {
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y install --no-install-recommends "$@"
}
