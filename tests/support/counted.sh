# counted.sh FILE COMMAND ...: runs the command and leaves "passed failed" in the file, as 1 0 or 0 1.
file=$1
shift
mkdir -p "$(dirname "$file")"
if "$@"; then
  echo 1 0 >"$file"
else
  status=$?
  echo 0 1 >"$file"
  exit "$status"
fi
