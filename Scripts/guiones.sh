#!/usr/bin/env bash
# Runs shellcheck over every script of ours.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
git ls-files -- run test bench .ci/run '*.sh' | sort -u | xargs shellcheck --external-sources
