#!/usr/bin/env bash
# Runs a program among data sources of its own, which are gone when it ends; nothing of the machine is changed:
#   ZQR      a PostgreSQL server that is started for it, user sa, password nova..381
#   slow     the same server, its rows fetched in portions over the wire
#   ward     an SQLite file
#   scripted the driver of a Transact-SQL server, and one that answers as a script says (scripted_server.py)
#   refused  a Transact-SQL server's driver on a port where nobody listens
#   nowhere  the same driver on a server whose name does not resolve
# usage: with_data_sources.sh DRIVER_FOLDER PROGRAM ARGUMENT...
set -euo pipefail
drivers=$1
shift

folder=$(mktemp -d)
server=$(echo /usr/lib/postgresql/*/bin | tr ' ' '\n' | tail -1)
# The server does not run as root.
as_user=()
[ "$(id -u)" -ne 0 ] || as_user=(runuser -u postgres --)

# in_server PROGRAM ARGUMENT...: runs one of the server's programs, quietly unless it fails.
in_server() {
  (cd "$folder" && "${as_user[@]}" "$server/$1" "${@:2}") >"$folder/log" 2>&1 || { cat "$folder/log" >&2; return 1; }
}

finish() {
  [ -z "${scripted:-}" ] || kill "$scripted"
  in_server pg_ctl -D "$folder/data" -m immediate stop || true
  rm -rf "$folder"
}
trap finish EXIT

[ "$(id -u)" -ne 0 ] || chown postgres "$folder"
echo "nova..381" >"$folder/password"
chmod a+r "$folder/password"
in_server initdb -D "$folder/data" -U sa --auth=scram-sha-256 --pwfile="$folder/password" -E UTF8 --locale=C.UTF-8 --no-sync
in_server pg_ctl -D "$folder/data" -w -l "$folder/data/log" \
  -o "-c listen_addresses='' -c unix_socket_directories='$folder' -c fsync=off" start

python3 -B "$(dirname "$(readlink -f "$0")")/scripted_server.py" >"$folder/port" &
scripted=$!
while [ ! -s "$folder/port" ]; do sleep 0.05; done

cat >"$folder/odbc.ini" <<END
[ZQR]
Driver = $drivers/psqlodbcw.so
Servername = $folder
Database = postgres
[slow]
Driver = $drivers/psqlodbcw.so
Servername = $folder
Database = postgres
UseDeclareFetch = 1
Fetch = 100
[ward]
Driver = $drivers/libsqlite3odbc.so
Database = $folder/ward.sqlite
[scripted]
Driver = $drivers/libtdsodbc.so
Server = 127.0.0.1
Port = $(cat "$folder/port")
TDS_Version = 7.4
[refused]
Driver = $drivers/libtdsodbc.so
Server = 127.0.0.1
Port = 1
TDS_Version = 7.4
[nowhere]
Driver = $drivers/libtdsodbc.so
Server = no-such-server.invalid
Port = 1433
TDS_Version = 7.4
END
: >"$folder/odbcinst.ini"
ODBCINI=$folder/odbc.ini ODBCSYSINI=$folder "$@"
