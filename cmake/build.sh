# Sourced by the commands of the root: configures and builds what they need.

# build_preset PRESET TARGET ...
build_preset() {
  preset=$1
  shift
  mkdir -p "$root/build"
  (
    cd "$root"
    cmake --preset "$preset" >"build/$preset.configure.log" 2>&1 || {
      cat "build/$preset.configure.log" >&2
      exit 1
    }
    cmake --build --preset "$preset" --target "$@" >"build/$preset.build.log" 2>&1 || {
      cat "build/$preset.build.log" >&2
      exit 1
    }
  )
}
