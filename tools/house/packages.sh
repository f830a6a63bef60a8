# Sourced by ./run and ./test: installs the Debian packages that are missing.

run_packages="g++ cmake ninja-build ccache pkg-config qt6-base-dev libqt6opengl6-dev qt6-tools-dev libsqlite3-dev
  libsqlitecpp-dev libgsf-1-dev libxlsxwriter-dev libfreexl-dev libpugixml-dev unixodbc-dev
  libgtest-dev libgmock-dev fonts-noto-core"
test_packages="$run_packages clang-14 libclang-rt-14-dev clang-format-14 clang-tidy-14 python3 python3-xlrd python3-openpyxl
  poppler-utils libreoffice-calc-nogui libreoffice-writer-nogui sqlite3 strace
  libsqliteodbc odbc-postgresql postgresql tdsodbc sqlfluff"
bench_packages="$run_packages libbenchmark-dev python3-xlwt strace"

# need PACKAGE...: says what is missing and installs it, with sudo where that takes it.
need() {
  local missing=() package
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Installing packages: ${missing[*]}"
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
