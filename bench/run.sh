#!/usr/bin/env bash
# Measures the program and prints the results as Markdown; how far it is, it says on standard error.
# A goal that is missed is part of the result: the exit code is 0 unless something could not run.
set -euo pipefail
export LC_ALL=C

here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
tree=$here/../build/bench
program=$tree/vexo-xyz
tables=$here/tables.py
cores=$(nproc)

usage() {
  cat <<'END'
usage: bench/run.sh [OPTION…] [SECTION…]

sections (all of them unless named):
  whole    the program against ogr2ogr: time, CPU, memory
  growth   time by number of lines
  phases   one import, its steps timed one by one
  micro    single functions, each beside a baseline
  workbook a workbook into the table of rows against ogr2ogr: time, memory
  script   the module's own share of an import in the CAD host's scripting layer

options:
  --in DIR       folder for the files, some 1.5 GB (default: $TMPDIR, else /tmp); all are removed at the end
  --points N     lines of the large file (default: 1000000)
  --pairs N      runs of each program in `whole`, in turn (default: 3)
  --runs N       runs in `growth` and `phases` (default: 5)
  --write FILE   also put the results into FILE, between the lines `<!-- measured: begin -->` and
                 `<!-- measured: end -->`; only with all sections
END
}

say() { printf 'bench: %s\n' "$*" >&2; }
die() { say "$@"; exit 1; }

# ---- What is asked for ----------------------------------------------------------------------

folder=${TMPDIR:-/tmp} points=1000000 pairs=3 runs=5 page='' sections=()

whole_number() { [[ $2 =~ ^[1-9][0-9]*$ ]] || die "$1 takes a number above 0, not '$2'"; }

while (($#)); do
  case $1 in
    --in | --points | --pairs | --runs | --write) (($# > 1)) || die "$1 needs a value" ;;&
    --in) folder=$2; shift ;;
    --points) whole_number "$1" "$2"; points=$2; shift ;;
    --pairs) whole_number "$1" "$2"; pairs=$2; shift ;;
    --runs) whole_number "$1" "$2"; runs=$2; shift ;;
    --write) page=$2; shift ;;
    whole | growth | phases | micro | workbook | script) sections+=("$1") ;;
    -h | --help) usage; exit ;;
    *) usage >&2; die "not understood: $1" ;;
  esac
  shift
done
if [[ -n $page ]]; then
  ((${#sections[@]} == 0)) || die '--write takes no sections: the page would lose the others'
  python3 "$tables" check "$page" || die "no place for the results in $page"
fi
((${#sections[@]})) || sections=(whole growth phases micro workbook script)

for needed in "$program" "$tree/bench/phases" "$tree/bench/microbench" "$tree/bench/read_workbook"; do
  [[ -x $needed ]] || die "not built: $needed (./dev bench builds it)"
done
for needed in ogr2ogr python3 /usr/bin/time; do
  command -v "$needed" >/dev/null || die "not installed: $needed (./dev bench installs it)"
done

[[ -d $folder ]] || die "no such folder: $folder"
folder=$(realpath -- "$folder")
needed_mb=$((points * 1500 / 1000000 + 1))
free_mb=$(df --output=avail -BM -- "$folder" | tail -n 1 | tr -dc 0-9)
((free_mb >= needed_mb)) || die "$folder has $free_mb MB free, $needed_mb are needed (--in DIR chooses another)"
work=$(mktemp -d -- "$folder/vexo-bench-XXXXXX")
trap 'rm -rf -- "$work"' EXIT
export XDG_STATE_HOME=$work VEXO_RYNEK=PL  # nothing of this user's: neither the log nor the country
say "working in $work, which takes up to $needed_mb MB and is removed at the end"

# ---- Running and measuring ------------------------------------------------------------------

# Removes the drawing of the run before and lets the disk finish with it.
settle() {
  rm -f -- "$@"
  sync -f -- "$work"
}

now() { printf '%s' "${EPOCHREALTIME/./}"; }  # microseconds

# CPU time that all processes and the hypervisor took so far, in hundredths of a second.
all_cpu() {
  local user nice system irq softirq steal
  read -r _ user nice system _ _ irq softirq steal _ </proc/stat
  printf '%s' $((user + nice + system + irq + softirq + steal))
}

# quietly COMMAND…: with nothing to read, its output kept for the case that it fails.
quietly() {
  "$@" >"$work/output" 2>&1 </dev/null && return
  cat -- "$work/output" >&2
  die "failed: $*"
}

# clocked COMMAND…: sets `wall`, in microseconds.
clocked() {
  local begun
  begun=$(now)
  quietly "$@"
  wall=$(($(now) - begun))
}

# full NAME DRAWING COMMAND…: prints name, wall time, user and system CPU time, peak memory, all CPU time meanwhile
# and the drawing's size, separated by tabs; in µs, s, s, KiB, s/100, bytes.
full() {
  local name=$1 drawing=$2 before after wall
  shift 2
  settle "$drawing"
  before=$(all_cpu)
  clocked /usr/bin/time -o "$work/time" -f '%U\t%S\t%M' "$@"
  after=$(all_cpu)
  printf '%s\t%s\t%s\t%s\t%s\n' \
    "$name" "$wall" "$(cat -- "$work/time")" "$((after - before))" "$(stat -c %s -- "$drawing")"
}

# Makes a file of so many lines unless it is there, and prints its name.
survey_file() {
  local path=$work/survey-$1.csv
  [[ -e $path ]] || python3 "$here/make_points.py" survey "$1" "$path"
  printf '%s' "$path"
}

# ---- The sections ---------------------------------------------------------------------------

processor() {
  sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo | head -n 1 | tr -d '\n'
  printf ', %s cores' "$cores"
  ! grep -q '^flags.* hypervisor' /proc/cpuinfo || printf ', in a virtual machine'
}

compiler() {
  local path
  path=$(sed -n 's/^CMAKE_CXX_COMPILER:[A-Z]*=//p' "$tree/CMakeCache.txt")
  "$path" --version | head -n 1
}

machine() {
  cat <<END
Measured on $(date +%Y-%m-%d) with \`./dev bench\`.

- Processor: $(processor); $(awk '/^MemTotal/ { printf "%.0f", $2 * 1024 / 1e9 }' /proc/meminfo) GB of memory; load average at the start: $(cut -d ' ' -f 1-3 /proc/loadavg)
- Kernel: $(uname -sr); files on $(df --output=fstype -- "$work" | tail -n 1)
- Compiler: $(compiler); $(ogr2ogr --version | cut -d , -f 1)

END
}

whole() {
  local survey plain=$work/plain.csv ours=$work/ours.dxf theirs=$work/theirs.dxf pair
  local -a us them
  say 'whole: making the files'
  survey=$(survey_file "$points")
  python3 "$here/make_points.py" plain "$points" "$plain"
  us=("$program" "$survey" -o "$ours")
  them=(ogr2ogr -f DXF "$theirs" "$plain"
    -oo X_POSSIBLE_NAMES=x -oo Y_POSSIBLE_NAMES=y -oo Z_POSSIBLE_NAMES=z -oo KEEP_GEOM_COLUMNS=NO)

  say 'whole: warming up'
  full warm "$ours" "${us[@]}" >/dev/null
  full warm "$theirs" "${them[@]}" >/dev/null
  python3 "$tables" same_points "$ours" "$theirs" "$points" || die 'the two drawings do not hold the same points'
  for ((pair = 1; pair <= pairs; ++pair)); do
    say "whole: pair $pair of $pairs"
    full vexo-xyz "$ours" "${us[@]}"
    full ogr2ogr "$theirs" "${them[@]}"
  done >"$work/whole.tsv"
  python3 "$tables" whole "$work/whole.tsv" "$points" "$cores"
  rm -f -- "$ours" "$theirs" "$plain"
}

growth() {
  local count run wall drawing=$work/growth.dxf
  local -a counts=()
  for ((count = points; count >= 100 && ${#counts[@]} < 4; count /= 10)); do counts=("$count" "${counts[@]}"); done
  for count in "${counts[@]}"; do survey_file "$count" >/dev/null; done
  for ((run = 0; run <= runs; ++run)); do  # number 0 warms up
    say "growth: run $run of $runs"
    for count in "${counts[@]}"; do
      settle "$drawing"
      clocked "$program" "$work/survey-$count.csv" -o "$drawing"
      ((run == 0)) || printf '%s\t%s\n' "$count" "$wall"
    done
  done >"$work/growth.tsv"
  python3 "$tables" growth "$work/growth.tsv"
  rm -f -- "$drawing"
}

phases() {
  local survey run wall drawing=$work/phases.dxf
  survey=$(survey_file "$points")
  for ((run = 0; run <= runs; ++run)); do
    say "phases: run $run of $runs"
    settle "$drawing"
    clocked "$tree/bench/phases" "$survey" "$drawing"
    ((run == 0)) || { cat -- "$work/output"; printf 'whole process\t%se-6\t0\n' "$wall"; }
  done >"$work/phases.tsv"
  python3 "$tables" phases "$work/phases.tsv" "$points"
  rm -f -- "$drawing"
}

micro() {
  say 'micro: this takes a minute or two'
  "$tree/bench/microbench" --benchmark_format=json --benchmark_repetitions=9 --benchmark_min_time=0.1 \
    --benchmark_enable_random_interleaving=true >"$work/micro.json" 2>"$work/output" </dev/null || {
    cat -- "$work/output" >&2
    die 'failed: microbench'
  }
  python3 "$tables" micro "$work/micro.json"
}

workbook() {
  say 'workbook: making the file'
  python3 "$here/workbook.py" "$tree/bench/read_workbook" "$work" "$pairs"
}

# The modules are for Debian's own interpreter.
script() {
  say 'script: this takes a minute or two'
  printf '### The module in the scripting layer\n\n'
  /usr/bin/python3 "$here/host_share.py" "$tree/python/vexo_xyz" "$here/../tests/python"
}

{
  machine
  for section in "${sections[@]}"; do "$section"; done
} | tee -- "$work/results.md"
[[ -z $page ]] || python3 "$tables" insert "$page" "$work/results.md"
