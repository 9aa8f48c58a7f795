# Builds by preset, with the time they took. Sourced by ./run and ./test, which set `root`.

# build_preset PRESET [CMAKE-OPTION...] [-- TARGET...]: configures and builds; everything without targets.
build_preset() {
  local preset=$1 options=() targets=()
  shift
  while (($#)) && [[ $1 != -- ]]; do
    options+=("$1")
    shift
  done
  (($#)) && shift && (($#)) && targets=(--target "$@")

  local start=$SECONDS log=$root/build/$preset-configure.log
  mkdir -p "$root/build"
  if ! (cd "$root" && cmake --preset "$preset" "${options[@]}") >"$log" 2>&1; then
    cat "$log" >&2
    return 1
  fi
  (cd "$root" && cmake --build --preset "$preset" -j "$(nproc)" "${targets[@]}") || return 1
  echo "Build time of $preset: $(took "$start")"
}

# took START: the time since START, a value of SECONDS.
took() {
  local seconds=$((SECONDS - $1))
  echo "$((seconds / 60)) min $((seconds % 60)) s"
}
