#!/bin/sh
# run-main-job.sh BUILD-FOLDER SQLITE-SHELL PROGRAM...
#
# Imports the sample with PROGRAM and shows the way: what is in it, the import, a part of the dump, questions to the database.
# SQLITE-SHELL may be empty: then the questions are only told.
set -eu
cd "$1"
shell=$2
shift 2

sample=samples/coolant-pump.pdx
database=coolant-pump.sqlite
dump=coolant-pump.dump

if [ -t 1 ] && [ -z "${NO_COLOR:-}" ]; then
    heading() { printf '\n\033[1;36m== %s\033[0m\n' "$1"; }
else
    heading() { printf '\n== %s\n' "$1"; }
fi

ask() {
    heading "$1"
    printf '%s\n' "$2"
    if [ -n "$shell" ]; then
        "$shell" -readonly -box "$database" "$2"
    else
        echo "(install the package sqlite3 to see the answer)"
    fi
}

heading "What is in $sample"
"$@" list "$sample"

heading "Import into $database"
"$@" import "$sample" --output "$database" --dump "$dump"

heading "The first lines of the dump ($dump)"
head -n 14 "$dump"

ask "Trouble codes with their records" \
    "SELECT code, item, text FROM trouble_code_records WHERE text <> '' LIMIT 8"
ask "Services with their shapes" \
    "SELECT variant, qualifier, service_id, shape, sub_value FROM services WHERE shape IS NOT NULL LIMIT 8"
ask "How coded values become physical ones" \
    "SELECT qualifier, kind, from_value, to_value, conversion, inverse_value FROM data_type_conversions LIMIT 12"
ask "What a packet holds, in order" \
    "SELECT packet, part, printf('%*s%s', 2 * depth, '', qualifier) AS member, kind, data_type, bit_length
  FROM packet_content LIMIT 14"
ask "What was left out, and why" \
    "SELECT fate, kind, count, reason FROM import_losses ORDER BY count DESC LIMIT 6"
