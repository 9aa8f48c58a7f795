# Running test programs and counting what they report. Sourced by ./test, which sets `root`.

passed=0
failed=0
skipped=0

# attribute FILE NAME: the value of an attribute of a report's outermost element.
attribute() {
  sed -nE "/<testsuites /{s/.* $2=\"([0-9]+)\".*/\1/p;q}" "$1"
}

# run_tests PRESET [PATTERN]: runs the test programs (those whose name fits) and adds up their cases. A
# program that fails without a report, or fails although its report is clean, counts as one failed case.
run_tests() {
  local build=$root/build/$1 pattern=${2:-.} start=$SECONDS done_before=$((passed + failed)) name
  local reports=$build/reports
  rm -rf "$reports"
  mkdir -p "$reports"
  GTEST_OUTPUT="xml:$reports/" ctest --test-dir "$build" --output-on-failure --timeout 900 -j "$(nproc)" \
    -R "$pattern" --no-tests=error
  local status=$? before=$failed
  while read -r name; do
    count_report "$reports/$name.xml" "$name"
  done < <(ctest --test-dir "$build" -N -R "$pattern" | sed -nE 's/^ *Test +#[0-9]+: //p')
  if ((status && failed == before)); then
    echo "The tests of $1 failed although no case did." >&2
    failed=$((failed + 1))
  fi
  echo "Tests of $1: $((passed + failed - done_before)) cases, $(took "$start")"
}

# count_report FILE PROGRAM
count_report() {
  local all bad left_out
  all=$(attribute "$1" tests 2>/dev/null)
  if [[ -z $all ]]; then
    echo "$2 ended without a report." >&2
    failed=$((failed + 1))
    return
  fi
  bad=$(($(attribute "$1" failures) + $(attribute "$1" errors)))
  left_out=$(($(attribute "$1" disabled) + $(grep -c '<testcase .* result="skipped"' "$1")))
  failed=$((failed + bad))
  skipped=$((skipped + left_out))
  passed=$((passed + all - bad - left_out))
}

# code_lines FOLDER...: lines of C++ that are neither blank nor comment.
code_lines() {
  find "$@" -name '*.cpp' -o -name '*.h' | xargs cat | grep -cvE '^\s*(//.*)?$'
}

# Test code is a quarter to a third of the product's code.
say_test_ratio() {
  local product tests
  product=$(cd "$root" && code_lines src tools)
  tests=$(cd "$root" && code_lines tests)
  echo "Code lines: product $product, tests $tests, ratio $(awk "BEGIN { printf \"%.2f\", $tests / $product }")"
}
