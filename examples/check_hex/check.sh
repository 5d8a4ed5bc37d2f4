#!/bin/sh
# Runs the Python script on the hex file of the last run.
#   check.sh HEX_FILE
# Ends with the script's result; with 0 where Python is not installed.

if ! command -v python3 >/dev/null; then
    echo "SKIPPED: python3 is not installed, so the hex file was not read."
    exit 0
fi
exec python3 "$(dirname "$0")/check_hex.py" "$1"
