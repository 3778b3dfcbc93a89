#!/bin/sh
# Stands in for the program while validating lock_e2e.py (with --expect solid): swaylock covers
# every output in plain black, no indicator. "--test-lock N": unlocks (SIGUSR1) after N seconds.
swaylock -u -c 000000 &
pid=$!
echo "Tarvanel: locking with swaylock (stand-in)" >&2
sleep "${2:-20}"
kill -USR1 "$pid"
wait "$pid"
