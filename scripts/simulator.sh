# The simulated controller beside the program. Sourced by ./run, which sets `root` and `programs`.

simulator=
window=
address=

# own_address ADDRESS: one of those that the simulated controller takes.
own_address() {
  [[ $1 =~ ^127\.0\.0\.2[0-9]$ ]]
}

# start_simulator FOLDER LOG: a machine whose files lie in FOLDER, at the first address that is free, which
# `address` then tells. What it does goes to LOG, one line for each thing. It ends with the script.
start_simulator() {
  mkdir -p "$1" "$(dirname "$2")"
  trap 'end simulator; end window' EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM
  for address in 127.0.0.2{0..9}; do
    "$programs/morvane-sim" --root "$1" --tcp "$address" >"$2" 2>&1 &
    simulator=$!
    simulator_ready "$2" && return 0
    end simulator
    grep -q 'Address already in use' "$2" || break
  done
  cat "$2" >&2
  return 1
}

# simulator_ready LOG: waits until it serves.
simulator_ready() {
  local round
  for ((round = 0; round < 100; round++)); do
    grep -q '^ready$' "$1" && return 0
    simulator_lives || return 1
    sleep 0.1
  done
  return 1
}

simulator_lives() {
  [[ -n $simulator ]] && kill -0 "$simulator" 2>/dev/null
}

# end NAME: the process whose id that variable holds.
end() {
  local -n process=$1
  [[ -n $process ]] || return 0
  kill "$process" 2>/dev/null || true
  wait "$process" 2>/dev/null || true
  process=
}

# setting BASE KEY: what the station's settings say.
setting() {
  "$programs/morvane-cli" --base "$1" settings get Settings "$2" ""
}

# set_settings BASE KEY=VALUE...
set_settings() {
  local base=$1 pair
  shift
  for pair in "$@"; do
    "$programs/morvane-cli" --base "$base" settings set Settings "${pair%%=*}" "${pair#*=}" || return 1
  done
}
